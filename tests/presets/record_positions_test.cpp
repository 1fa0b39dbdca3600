// SPDX-License-Identifier: GPL-3.0-or-later
#include "record_bench.h"

#include <platform/archives/color_archive.h>

#include "support/photo_builder.h"
#include "support/text_printing.h"

/// \file
/// Every record, position by position: files of presets are read by later versions of the program,
/// so no position may ever change.

using namespace brenvaldo;
using test::Effects;
using test::joined;
using test::Position;
using test::Positions;
using test::RecordBench;
using test::Round;

TEST(RecordPositions, HoldTheTextWatermark)
{
    RecordBench bench(u"textWM"_qs, u"TextWM"_qs, u"Watermark"_qs);
    bench.expectKept(
        {
            bench.destination(),
            {5, u"scWaterMarkPos"_qs, u"3"_qs, u"7"_qs},
            {6, u"tfFontSize"_qs, u"a6"_qs, u"b6"_qs},
            {7, u"tfKerning"_qs, u"a7"_qs, u"b7"_qs},
            {8, u"cbFontItalic"_qs, u"1"_qs, u"0"_qs},
            {9, u"cbFontBold"_qs, u"0"_qs, u"1"_qs},
            {10, u"tfWMAngle"_qs, u"a10"_qs, u"b10"_qs},
            {11, u"tfXOffset"_qs, u"a11"_qs, u"b11"_qs},
            {12, u"tfYOffset"_qs, u"a12"_qs, u"b12"_qs},
            {13, u"tfTextShadowXOffset"_qs, u"a13"_qs, u"b13"_qs},
            {14, u"tfTextShadowYOffset"_qs, u"a14"_qs, u"b14"_qs},
            {15, u"tfTextShadowRadius"_qs, u"a15"_qs, u"b15"_qs},
            {16, u"cwFontColor"_qs, u"0.25 0.5 1"_qs, u"1 0 0.5"_qs},
            {17, u"cwShadowColor"_qs, u"0.75 0 0.25"_qs, u"0 1 0.75"_qs},
            {18, u"cbShadowCheck"_qs, u"1"_qs, u"0"_qs},
            {19, u"cbOutlineCheck"_qs, u"0"_qs, u"1"_qs},
            {20, u"pubOutlineThickness"_qs, u"3"_qs, u"1"_qs},
            {21, u"pubTxtUnderline"_qs, u"2"_qs, u"1"_qs},
            {22, u"tfLeading"_qs, u"a22"_qs, u"b22"_qs},
            {23, u"tfFontTransparancy"_qs, u"a23"_qs, u"b23"_qs},
            {25, u"tvWaterMarkText"_qs, u"a25"_qs, u"b25"_qs},
            {26, u"pubTWMPhotoProperties"_qs, u"5"_qs, u"9"_qs},
            {27, u"cbWatermarkFont"_qs, u"Liberation Serif"_qs, u"DejaVu Sans"_qs},
            {28, u"pubWatermarkTextEffect"_qs, u"6"_qs, u"2"_qs},
            {29, u"scTxtAlign"_qs, u"2"_qs, u"1"_qs},
            {30, u"tfWatermarkFilterSize"_qs, u"a30"_qs, u"b30"_qs},
            {31, u"cwEmbossColor"_qs, u"0.5 1 0.25"_qs, u"0.25 0.25 1"_qs},
            {32, u"pubPhotoOrientation"_qs, u"2"_qs, u"3"_qs},
            {33, u"cbTextPatternCheck"_qs, u"1"_qs, u"1"_qs},
            {34, u"pubFileType"_qs, u"4"_qs, u"6"_qs},
            {35, u"pubJPEGCompressionLevel"_qs, u"7"_qs, u"1"_qs},
        },
        {{u"tfTextShadowXOffset"_qs, true, false},
         {u"tfTextShadowYOffset"_qs, true, false},
         {u"tfTextShadowRadius"_qs, true, false},
         {u"cwShadowColor"_qs, true, false}}
    );
}

TEST(RecordPositions, HoldTheImageWatermark)
{
    RecordBench bench(u"imageWM"_qs, u"ImageWM"_qs, u"Watermark"_qs);
    const test::TemporaryFolder& folder = bench.file.folder();
    const Positions restored = {
        bench.destination(),
        {13,
         u"tfWaterMarkImageFilePath"_qs,
         test::PhotoBuilder().size(31, 17).write(folder.path(u"logo.png"_qs)),
         test::PhotoBuilder().size(23, 19).write(folder.path(u"sign.png"_qs))},
        {4, u"scImageWaterMarkPos"_qs, u"3"_qs, u"7"_qs},
        {5, u"tfImageXOffset"_qs, u"a5"_qs, u"b5"_qs},
        {6, u"tfImageYOffset"_qs, u"a6"_qs, u"b6"_qs},
        {7, u"tfImageShadowXOffset"_qs, u"a7"_qs, u"b7"_qs},
        {8, u"tfImageShadowYOffset"_qs, u"a8"_qs, u"b8"_qs},
        {9, u"tfImageShadowRadius"_qs, u"a9"_qs, u"b9"_qs},
        {10, u"tfImageTransparancy"_qs, u"a10"_qs, u"b10"_qs},
        {11, u"cbImageFadeOut"_qs, u"1"_qs, u"0"_qs},
        {12, u"tfImageFadeOutAngle"_qs, u"a12"_qs, u"b12"_qs},
        {14, u"pubRenderMethod"_qs, u"2"_qs, u"5"_qs},
        {15, u"tfImageWMAngle"_qs, u"a15"_qs, u"b15"_qs},
        {16, u"tfImageScalePC"_qs, u"a16"_qs, u"b16"_qs},
        {18, u"tfCenterCircularWidth"_qs, u"a18"_qs, u"b18"_qs},
        {19, u"tfCenterCircularHeight"_qs, u"a19"_qs, u"b19"_qs},
        {20, u"tfLineScreenAngle"_qs, u"a20"_qs, u"b20"_qs},
        {21, u"cbPatternCheck"_qs, u"0"_qs, u"1"_qs},
        {23, u"cbImageFromLib"_qs, u"1"_qs, u"1"_qs},
        {24, u"pubWatermarkFilterType"_qs, u"3"_qs, u"1"_qs},
        {26, u"pubWatermarkFilterSharpness"_qs, u"1"_qs, u"0"_qs},
        {27, u"cbImageShadowCheck"_qs, u"1"_qs, u"0"_qs},
        {28, u"pubImageLookUp"_qs, u"2"_qs, u"1"_qs},
        {29, u"pubWatermarkTextEffectIntensity"_qs, u"0"_qs, u"2"_qs},
        {30, u"cbCircularFadeOut"_qs, u"0"_qs, u"1"_qs},
        {31, u"cbCircularInvertFadeOut"_qs, u"1"_qs, u"0"_qs},
        {32, u"cwImageShadowColor"_qs, u"0.25 0.5 1"_qs, u"1 0 0.5"_qs},
        {33, u"pubPhotoOrientation"_qs, u"2"_qs, u"3"_qs},
        {35, u"pubFileType"_qs, u"4"_qs, u"6"_qs},
        {36, u"pubJPEGCompressionLevel"_qs, u"7"_qs, u"1"_qs},
    };
    const Position simulation = {25, u"cbWMSimulationMode"_qs, u"1"_qs, u"0"_qs};
    const Positions written = joined(restored, {simulation});
    for (const Round round : {Round::First, Round::Second}) {
        bench.give(written, round);
        bench.saveRound(round);
        bench.expectRow(round, written);
    }
    for (const Round round : {Round::First, Round::Second}) {
        bench.giveOther(restored, round);
        bench.give(u"cbWMSimulationMode"_qs, u"1"_qs);
        bench.load(round);
        bench.expectValues(round, restored);
        EXPECT_EQ(bench.read(u"cbWMSimulationMode"_qs), u"0"_qs);
    }
    EXPECT_EQ(bench.panels.vwWatermark.iwWaterMarkImage.image()->width(), 23);
}

TEST(RecordPositions, HoldTheTintAndResetItsOutputChoices)
{
    RecordBench bench(u"addTint"_qs, u"addTint"_qs, u"Edit"_qs);
    const Effects enabled
        = {{u"pubAddTintAngle"_qs, false, true},
           {u"tfAddTintWidth"_qs, false, true},
           {u"tfAddTintHeight"_qs, false, true}};
    const Positions restored = {
        bench.destination(),
        {4, u"tfAddTintHexValue"_qs, u"a4"_qs, u"b4"_qs},
        {5, u"pubAddTintAngle"_qs, u"2"_qs, u"3"_qs},
        {6, u"tfAddTintOpacity"_qs, u"a6"_qs, u"b6"_qs},
        {7, u"pubAddTintRenderMethod"_qs, u"4"_qs, u"1"_qs},
        {8, u"scAddTintPosition"_qs, u"6"_qs, u"2"_qs},
        {9, u"tfAddTintPosX"_qs, u"a9"_qs, u"b9"_qs},
        {10, u"tfAddTintPosY"_qs, u"a10"_qs, u"b10"_qs},
        {11, u"cbAddTintDuoTone"_qs, u"1"_qs, u"1"_qs},
        {12, u"cbAddTintGradient"_qs, u"0"_qs, u"1"_qs},
        {13, u"cbAddTintOrigSize"_qs, u"1"_qs, u"0"_qs},
        {14, u"tfAddTintWidth"_qs, u"a14"_qs, u"b14"_qs},
        {15, u"tfAddTintHeight"_qs, u"a15"_qs, u"b15"_qs},
        {16, u"tfAddTintPercentage"_qs, u"a16"_qs, u"b16"_qs},
        {17, u"pubAddTintPercentageOrient"_qs, u"4"_qs, u"3"_qs},
        {18, u"tfAddTintPixels"_qs, u"a18"_qs, u"b18"_qs},
        {19, u"tbvFrameType"_qs, u"px"_qs, u"%"_qs},
        {20, u"cwAddTint"_qs, u"0.25 0.5 1"_qs, u"1 0 0.5"_qs},
    };
    const Positions reset = {
        {21, u"pubPhotoOrientation"_qs, u"1"_qs, u"3"_qs},
        {23, u"pubFileType"_qs, u"6"_qs, u"2"_qs},
        {24, u"pubJPEGCompressionLevel"_qs, u"8"_qs, u"4"_qs},
    };
    for (const Round round : {Round::First, Round::Second}) {
        bench.give(joined(restored, reset), round);
        bench.saveRound(round);
        bench.expectRow(round, joined(restored, reset));
    }
    for (const Round round : {Round::First, Round::Second}) {
        bench.giveOther(joined(restored, reset), round);
        bench.load(round, enabled);
        bench.expectValues(round, restored);
        for (const Position& position : reset)
            EXPECT_EQ(bench.read(position.control), u"0"_qs) << position.control.toStdString();
    }
}

TEST(RecordPositions, HoldTheFrame)
{
    RecordBench bench(u"framing"_qs, u"framing"_qs, u"Edit"_qs);
    bench.expectKept(
        joined(
            bench.commonPositions(),
            {
                {4, u"tfFramingThickness"_qs, u"a4"_qs, u"b4"_qs},
                {5, u"tfFramingInset"_qs, u"a5"_qs, u"b5"_qs},
                {6, u"pubFramingType"_qs, u"1"_qs, u"0"_qs},
                {7, u"pubFramingRenderMethod"_qs, u"4"_qs, u"2"_qs},
                {8, u"tfFramingOpacity"_qs, u"a8"_qs, u"b8"_qs},
                {9, u"tfFramingHEXvalue"_qs, u"a9"_qs, u"b9"_qs},
                {10, u"myNSColorWellObjFraming"_qs, u"0.25 0.5 1"_qs, u"1 0 0.5"_qs},
                {11, u"pubFramingGradientAngle"_qs, u"2"_qs, u"3"_qs},
                {12, u"cbFramingGradient"_qs, u"1"_qs, u"0"_qs},
            }
        ),
        {{u"pubFramingGradientAngle"_qs, true, false}}
    );
    EXPECT_EQ(
        bench.read(u"tfAddTintPosY"_qs), platform::archives::colorArchive({1.0F, 0.0F, 0.5F})
    );
}

TEST(RecordPositions, HoldTheRoundings)
{
    RecordBench bench(u"roundings"_qs, u"roundings"_qs, u"Edit"_qs);
    bench.expectKept(
        joined(
            bench.commonPositions(),
            {
                {4, u"pubRCType"_qs, u"0"_qs, u"2"_qs},
                {5, u"tfRCDiameter"_qs, u"a5"_qs, u"b5"_qs},
                {6, u"tfRCBorderWidth"_qs, u"a6"_qs, u"b6"_qs},
                {7, u"pubRCBorderPos"_qs, u"1"_qs, u"0"_qs},
                {8, u"tfRCBackgroundHexColor"_qs, u"a8"_qs, u"b8"_qs},
                {9, u"tfRCBorderHexColor"_qs, u"a9"_qs, u"b9"_qs},
                {10, u"cwRCBackgroundColor"_qs, u"0.25 0.5 1"_qs, u"1 0 0.5"_qs},
                {11, u"cwRCBorderColor"_qs, u"0.75 0 0.25"_qs, u"0 1 0.75"_qs},
                {12, u"cbRCBackgroundColor"_qs, u"1"_qs, u"0"_qs},
                {13, u"cbRCBorderColor"_qs, u"0"_qs, u"1"_qs},
                {14, u"pubRCGradientAngle"_qs, u"3"_qs, u"1"_qs},
                {15, u"cbRCGradient"_qs, u"1"_qs, u"1"_qs},
                {16, u"tfRCOpacity"_qs, u"a16"_qs, u"b16"_qs},
                {17, u"tfRCEnlargeCanvas"_qs, u"a17"_qs, u"b17"_qs},
            }
        ),
        {{u"tfRCDiameter"_qs, true, false},
         {u"cwRCBackgroundColor"_qs, true, false},
         {u"tfRCBackgroundHexColor"_qs, true, false},
         {u"tfRCEnlargeCanvas"_qs, true, false},
         {u"cwRCBorderColor"_qs, false, true},
         {u"tfRCBorderHexColor"_qs, false, true},
         {u"tfRCBorderWidth"_qs, false, true},
         {u"pubRCBorderPos"_qs, false, true},
         {u"pubRCGradientAngle"_qs, true, true}}
    );
}

TEST(RecordPositions, HoldTheProfileConversion)
{
    RecordBench bench(u"profileConversion"_qs, u"profileConversion"_qs, u"Edit"_qs);
    bench.expectKept(joined(
        bench.commonPositions(),
        {
            {4, u"pubCPCRenderIntent"_qs, u"2"_qs, u"3"_qs},
            {5, u"pubInstalledICCProfiles"_qs, u"3"_qs, u"1"_qs},
        }
    ));
}

TEST(RecordPositions, HoldTheRotation)
{
    RecordBench bench(u"rotatePhotos"_qs, u"rotatePhotos"_qs, u"Edit"_qs);
    bench.expectKept(
        joined(
            bench.commonPositions(),
            {
                {4, u"tfRotationAngle"_qs, u"a4"_qs, u"b4"_qs},
                {5, u"tfRotationBackgroundHexColor"_qs, u"FF0000"_qs, u"0000FF"_qs},
                {6, u"tfRotationEnlargeCanvas"_qs, u"a6"_qs, u"b6"_qs},
                {7, u"cbRotationBackgroundColor"_qs, u"1"_qs, u"0"_qs},
            }
        ),
        {{u"tfRotationEnlargeCanvas"_qs, true, false},
         {u"tfRotationBackgroundHexColor"_qs, true, false},
         {u"cwRotationBackgroundColor"_qs, true, false}}
    );
    EXPECT_EQ(bench.read(u"cwRotationBackgroundColor"_qs), u"0 0 1"_qs);
}

TEST(RecordPositions, HoldTheSizeOfTheChosenModeOnly)
{
    RecordBench bench(u"resizePhotos"_qs, u"resizePhotos"_qs, u"Edit"_qs);
    const Positions always
        = joined(bench.commonPositions(), {{7, u"pubScaleType"_qs, u"0"_qs, u"1"_qs}});
    const Positions fixed = {
        {4, u"tfScaleFixWidth"_qs, u"a4"_qs, u"b4"_qs},
        {5, u"tfScaleFixHeight"_qs, u"a5"_qs, u"b5"_qs},
        {6, u"cbScaleAspectRatio"_qs, u"1"_qs, u"1"_qs},
    };
    const Positions maximum = {
        {8, u"pubScaleMaxType"_qs, u"1"_qs, u"0"_qs},
        {9, u"tfScaleMaxVal"_qs, u"a9"_qs, u"b9"_qs},
    };
    for (const Round round : {Round::First, Round::Second}) {
        bench.give(joined(joined(always, fixed), maximum), round);
        bench.saveRound(round);
        bench.expectRow(round, joined(always, round == Round::First ? maximum : fixed));
    }

    const auto& holder = bench.panels.vwResizePhotos.dvVCUiResizeMainView;
    for (const Round round : {Round::First, Round::Second}) {
        bench.giveOther(joined(joined(always, fixed), maximum), round);
        bench.load(round);
        bench.expectValues(round, always);
        bench.expectValues(round, round == Round::First ? maximum : fixed);
        bench.expectOther(round, round == Round::First ? fixed : maximum);
        EXPECT_EQ(
            holder.views(),
            QStringList(round == Round::First ? u"dvVCUiScaleMaxView"_qs : u"dvVCUiScaleFixView"_qs)
        );
    }
}

TEST(RecordPositions, HoldTheCropAndLoseItsCutOff)
{
    RecordBench bench(u"cropPhotos"_qs, u"cropPhotos"_qs, u"Edit"_qs);
    const Positions always = joined(
        bench.commonPositions(),
        {
            {4, u"scCropPosition"_qs, u"6"_qs, u"2"_qs},
            {5, u"tfXcropOffset"_qs, u"a5"_qs, u"b5"_qs},
            {6, u"tfYcropOffset"_qs, u"a6"_qs, u"b6"_qs},
            {10, u"pubCropType"_qs, u"0"_qs, u"1"_qs},
        }
    );
    const Positions size = {
        {7, u"tfCropWidth"_qs, u"a7"_qs, u"b7"_qs},
        {8, u"tfCropHeight"_qs, u"a8"_qs, u"b8"_qs},
    };
    const Positions cutOff = {{9, u"tfCropCutOff"_qs, u"a9"_qs, u"b9"_qs}};
    for (const Round round : {Round::First, Round::Second}) {
        bench.give(joined(joined(always, size), cutOff), round);
        bench.saveRound(round);
        bench.expectRow(round, joined(always, round == Round::First ? size : cutOff));
    }

    const auto& holder = bench.panels.vwCropPhotos.dvVCUiCropTypeView;
    bench.giveOther(joined(joined(always, size), cutOff), Round::First);
    bench.load(Round::First);
    bench.expectValues(Round::First, joined(always, size));
    bench.expectOther(Round::First, cutOff);
    EXPECT_EQ(holder.views(), QStringList(u"dvVCUiCropWxHView"_qs));

    bench.giveOther(joined(joined(always, size), cutOff), Round::Second);
    bench.load(Round::Second);
    bench.expectValues(Round::Second, always);
    bench.expectOther(Round::Second, joined(size, cutOff));
    EXPECT_EQ(holder.views(), QStringList(u"dvVCUiCropMinusView"_qs));
}
