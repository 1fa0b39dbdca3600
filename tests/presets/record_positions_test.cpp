// SPDX-License-Identifier: GPL-3.0-or-later
#include "record_bench.h"

#include <platform/archives/color_archive.h>
#include <platform/foundation/literals.h>

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
    RecordBench bench(u"textWM"_s, u"TextWM"_s, u"Watermark"_s);
    bench.expectKept(
        {
            bench.destination(),
            {5, u"scWaterMarkPos"_s, u"3"_s, u"7"_s},
            {6, u"tfFontSize"_s, u"a6"_s, u"b6"_s},
            {7, u"tfKerning"_s, u"a7"_s, u"b7"_s},
            {8, u"cbFontItalic"_s, u"1"_s, u"0"_s},
            {9, u"cbFontBold"_s, u"0"_s, u"1"_s},
            {10, u"tfWMAngle"_s, u"a10"_s, u"b10"_s},
            {11, u"tfXOffset"_s, u"a11"_s, u"b11"_s},
            {12, u"tfYOffset"_s, u"a12"_s, u"b12"_s},
            {13, u"tfTextShadowXOffset"_s, u"a13"_s, u"b13"_s},
            {14, u"tfTextShadowYOffset"_s, u"a14"_s, u"b14"_s},
            {15, u"tfTextShadowRadius"_s, u"a15"_s, u"b15"_s},
            {16, u"cwFontColor"_s, u"0.25 0.5 1"_s, u"1 0 0.5"_s},
            {17, u"cwShadowColor"_s, u"0.75 0 0.25"_s, u"0 1 0.75"_s},
            {18, u"cbShadowCheck"_s, u"1"_s, u"0"_s},
            {19, u"cbOutlineCheck"_s, u"0"_s, u"1"_s},
            {20, u"pubOutlineThickness"_s, u"3"_s, u"1"_s},
            {21, u"pubTxtUnderline"_s, u"2"_s, u"1"_s},
            {22, u"tfLeading"_s, u"a22"_s, u"b22"_s},
            {23, u"tfFontTransparancy"_s, u"a23"_s, u"b23"_s},
            {25, u"tvWaterMarkText"_s, u"a25"_s, u"b25"_s},
            {26, u"pubTWMPhotoProperties"_s, u"5"_s, u"9"_s},
            {27, u"cbWatermarkFont"_s, u"Liberation Serif"_s, u"DejaVu Sans"_s},
            {28, u"pubWatermarkTextEffect"_s, u"6"_s, u"2"_s},
            {29, u"scTxtAlign"_s, u"2"_s, u"1"_s},
            {30, u"tfWatermarkFilterSize"_s, u"a30"_s, u"b30"_s},
            {31, u"cwEmbossColor"_s, u"0.5 1 0.25"_s, u"0.25 0.25 1"_s},
            {32, u"pubPhotoOrientation"_s, u"2"_s, u"3"_s},
            {33, u"cbTextPatternCheck"_s, u"1"_s, u"1"_s},
            {34, u"pubFileType"_s, u"4"_s, u"6"_s},
            {35, u"pubJPEGCompressionLevel"_s, u"7"_s, u"1"_s},
        },
        {{u"tfTextShadowXOffset"_s, true, false},
         {u"tfTextShadowYOffset"_s, true, false},
         {u"tfTextShadowRadius"_s, true, false},
         {u"cwShadowColor"_s, true, false}}
    );
}

TEST(RecordPositions, HoldTheImageWatermark)
{
    RecordBench bench(u"imageWM"_s, u"ImageWM"_s, u"Watermark"_s);
    const test::TemporaryFolder& folder = bench.file.folder();
    const Positions restored = {
        bench.destination(),
        {13,
         u"tfWaterMarkImageFilePath"_s,
         test::PhotoBuilder().size(31, 17).write(folder.path(u"logo.png"_s)),
         test::PhotoBuilder().size(23, 19).write(folder.path(u"sign.png"_s))},
        {4, u"scImageWaterMarkPos"_s, u"3"_s, u"7"_s},
        {5, u"tfImageXOffset"_s, u"a5"_s, u"b5"_s},
        {6, u"tfImageYOffset"_s, u"a6"_s, u"b6"_s},
        {7, u"tfImageShadowXOffset"_s, u"a7"_s, u"b7"_s},
        {8, u"tfImageShadowYOffset"_s, u"a8"_s, u"b8"_s},
        {9, u"tfImageShadowRadius"_s, u"a9"_s, u"b9"_s},
        {10, u"tfImageTransparancy"_s, u"a10"_s, u"b10"_s},
        {11, u"cbImageFadeOut"_s, u"1"_s, u"0"_s},
        {12, u"tfImageFadeOutAngle"_s, u"a12"_s, u"b12"_s},
        {14, u"pubRenderMethod"_s, u"2"_s, u"5"_s},
        {15, u"tfImageWMAngle"_s, u"a15"_s, u"b15"_s},
        {16, u"tfImageScalePC"_s, u"a16"_s, u"b16"_s},
        {18, u"tfCenterCircularWidth"_s, u"a18"_s, u"b18"_s},
        {19, u"tfCenterCircularHeight"_s, u"a19"_s, u"b19"_s},
        {20, u"tfLineScreenAngle"_s, u"a20"_s, u"b20"_s},
        {21, u"cbPatternCheck"_s, u"0"_s, u"1"_s},
        {23, u"cbImageFromLib"_s, u"1"_s, u"1"_s},
        {24, u"pubWatermarkFilterType"_s, u"3"_s, u"1"_s},
        {26, u"pubWatermarkFilterSharpness"_s, u"1"_s, u"0"_s},
        {27, u"cbImageShadowCheck"_s, u"1"_s, u"0"_s},
        {28, u"pubImageLookUp"_s, u"2"_s, u"1"_s},
        {29, u"pubWatermarkTextEffectIntensity"_s, u"0"_s, u"2"_s},
        {30, u"cbCircularFadeOut"_s, u"0"_s, u"1"_s},
        {31, u"cbCircularInvertFadeOut"_s, u"1"_s, u"0"_s},
        {32, u"cwImageShadowColor"_s, u"0.25 0.5 1"_s, u"1 0 0.5"_s},
        {33, u"pubPhotoOrientation"_s, u"2"_s, u"3"_s},
        {35, u"pubFileType"_s, u"4"_s, u"6"_s},
        {36, u"pubJPEGCompressionLevel"_s, u"7"_s, u"1"_s},
    };
    const Position simulation = {25, u"cbWMSimulationMode"_s, u"1"_s, u"0"_s};
    const Positions written = joined(restored, {simulation});
    for (const Round round : {Round::First, Round::Second}) {
        bench.give(written, round);
        bench.saveRound(round);
        bench.expectRow(round, written);
    }
    for (const Round round : {Round::First, Round::Second}) {
        bench.giveOther(restored, round);
        bench.give(u"cbWMSimulationMode"_s, u"1"_s);
        bench.load(round);
        bench.expectValues(round, restored);
        EXPECT_EQ(bench.read(u"cbWMSimulationMode"_s), u"0"_s);
    }
    EXPECT_EQ(bench.panels.vwWatermark.iwWaterMarkImage.image()->width(), 23);
}

TEST(RecordPositions, HoldTheTintAndResetItsOutputChoices)
{
    RecordBench bench(u"addTint"_s, u"addTint"_s, u"Edit"_s);
    const Effects enabled
        = {{u"pubAddTintAngle"_s, false, true},
           {u"tfAddTintWidth"_s, false, true},
           {u"tfAddTintHeight"_s, false, true}};
    const Positions restored = {
        bench.destination(),
        {4, u"tfAddTintHexValue"_s, u"a4"_s, u"b4"_s},
        {5, u"pubAddTintAngle"_s, u"2"_s, u"3"_s},
        {6, u"tfAddTintOpacity"_s, u"a6"_s, u"b6"_s},
        {7, u"pubAddTintRenderMethod"_s, u"4"_s, u"1"_s},
        {8, u"scAddTintPosition"_s, u"6"_s, u"2"_s},
        {9, u"tfAddTintPosX"_s, u"a9"_s, u"b9"_s},
        {10, u"tfAddTintPosY"_s, u"a10"_s, u"b10"_s},
        {11, u"cbAddTintDuoTone"_s, u"1"_s, u"1"_s},
        {12, u"cbAddTintGradient"_s, u"0"_s, u"1"_s},
        {13, u"cbAddTintOrigSize"_s, u"1"_s, u"0"_s},
        {14, u"tfAddTintWidth"_s, u"a14"_s, u"b14"_s},
        {15, u"tfAddTintHeight"_s, u"a15"_s, u"b15"_s},
        {16, u"tfAddTintPercentage"_s, u"a16"_s, u"b16"_s},
        {17, u"pubAddTintPercentageOrient"_s, u"4"_s, u"3"_s},
        {18, u"tfAddTintPixels"_s, u"a18"_s, u"b18"_s},
        {19, u"tbvFrameType"_s, u"px"_s, u"%"_s},
        {20, u"cwAddTint"_s, u"0.25 0.5 1"_s, u"1 0 0.5"_s},
    };
    const Positions reset = {
        {21, u"pubPhotoOrientation"_s, u"1"_s, u"3"_s},
        {23, u"pubFileType"_s, u"6"_s, u"2"_s},
        {24, u"pubJPEGCompressionLevel"_s, u"8"_s, u"4"_s},
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
            EXPECT_EQ(bench.read(position.control), u"0"_s) << position.control.toStdString();
    }
}

TEST(RecordPositions, HoldTheFrame)
{
    RecordBench bench(u"framing"_s, u"framing"_s, u"Edit"_s);
    bench.expectKept(
        joined(
            bench.commonPositions(),
            {
                {4, u"tfFramingThickness"_s, u"a4"_s, u"b4"_s},
                {5, u"tfFramingInset"_s, u"a5"_s, u"b5"_s},
                {6, u"pubFramingType"_s, u"1"_s, u"0"_s},
                {7, u"pubFramingRenderMethod"_s, u"4"_s, u"2"_s},
                {8, u"tfFramingOpacity"_s, u"a8"_s, u"b8"_s},
                {9, u"tfFramingHEXvalue"_s, u"a9"_s, u"b9"_s},
                {10, u"myNSColorWellObjFraming"_s, u"0.25 0.5 1"_s, u"1 0 0.5"_s},
                {11, u"pubFramingGradientAngle"_s, u"2"_s, u"3"_s},
                {12, u"cbFramingGradient"_s, u"1"_s, u"0"_s},
            }
        ),
        {{u"pubFramingGradientAngle"_s, true, false}}
    );
    EXPECT_EQ(bench.read(u"tfAddTintPosY"_s), platform::archives::colorArchive({1.0F, 0.0F, 0.5F}));
}

TEST(RecordPositions, HoldTheRoundings)
{
    RecordBench bench(u"roundings"_s, u"roundings"_s, u"Edit"_s);
    bench.expectKept(
        joined(
            bench.commonPositions(),
            {
                {4, u"pubRCType"_s, u"0"_s, u"2"_s},
                {5, u"tfRCDiameter"_s, u"a5"_s, u"b5"_s},
                {6, u"tfRCBorderWidth"_s, u"a6"_s, u"b6"_s},
                {7, u"pubRCBorderPos"_s, u"1"_s, u"0"_s},
                {8, u"tfRCBackgroundHexColor"_s, u"a8"_s, u"b8"_s},
                {9, u"tfRCBorderHexColor"_s, u"a9"_s, u"b9"_s},
                {10, u"cwRCBackgroundColor"_s, u"0.25 0.5 1"_s, u"1 0 0.5"_s},
                {11, u"cwRCBorderColor"_s, u"0.75 0 0.25"_s, u"0 1 0.75"_s},
                {12, u"cbRCBackgroundColor"_s, u"1"_s, u"0"_s},
                {13, u"cbRCBorderColor"_s, u"0"_s, u"1"_s},
                {14, u"pubRCGradientAngle"_s, u"3"_s, u"1"_s},
                {15, u"cbRCGradient"_s, u"1"_s, u"1"_s},
                {16, u"tfRCOpacity"_s, u"a16"_s, u"b16"_s},
                {17, u"tfRCEnlargeCanvas"_s, u"a17"_s, u"b17"_s},
            }
        ),
        {{u"tfRCDiameter"_s, true, false},
         {u"cwRCBackgroundColor"_s, true, false},
         {u"tfRCBackgroundHexColor"_s, true, false},
         {u"tfRCEnlargeCanvas"_s, true, false},
         {u"cwRCBorderColor"_s, false, true},
         {u"tfRCBorderHexColor"_s, false, true},
         {u"tfRCBorderWidth"_s, false, true},
         {u"pubRCBorderPos"_s, false, true},
         {u"pubRCGradientAngle"_s, true, true}}
    );
}

TEST(RecordPositions, HoldTheProfileConversion)
{
    RecordBench bench(u"profileConversion"_s, u"profileConversion"_s, u"Edit"_s);
    bench.expectKept(joined(
        bench.commonPositions(),
        {
            {4, u"pubCPCRenderIntent"_s, u"2"_s, u"3"_s},
            {5, u"pubInstalledICCProfiles"_s, u"3"_s, u"1"_s},
        }
    ));
}

TEST(RecordPositions, HoldTheRotation)
{
    RecordBench bench(u"rotatePhotos"_s, u"rotatePhotos"_s, u"Edit"_s);
    bench.expectKept(
        joined(
            bench.commonPositions(),
            {
                {4, u"tfRotationAngle"_s, u"a4"_s, u"b4"_s},
                {5, u"tfRotationBackgroundHexColor"_s, u"FF0000"_s, u"0000FF"_s},
                {6, u"tfRotationEnlargeCanvas"_s, u"a6"_s, u"b6"_s},
                {7, u"cbRotationBackgroundColor"_s, u"1"_s, u"0"_s},
            }
        ),
        {{u"tfRotationEnlargeCanvas"_s, true, false},
         {u"tfRotationBackgroundHexColor"_s, true, false},
         {u"cwRotationBackgroundColor"_s, true, false}}
    );
    EXPECT_EQ(bench.read(u"cwRotationBackgroundColor"_s), u"0 0 1"_s);
}

TEST(RecordPositions, HoldTheSizeOfTheChosenModeOnly)
{
    RecordBench bench(u"resizePhotos"_s, u"resizePhotos"_s, u"Edit"_s);
    const Positions always
        = joined(bench.commonPositions(), {{7, u"pubScaleType"_s, u"0"_s, u"1"_s}});
    const Positions fixed = {
        {4, u"tfScaleFixWidth"_s, u"a4"_s, u"b4"_s},
        {5, u"tfScaleFixHeight"_s, u"a5"_s, u"b5"_s},
        {6, u"cbScaleAspectRatio"_s, u"1"_s, u"1"_s},
    };
    const Positions maximum = {
        {8, u"pubScaleMaxType"_s, u"1"_s, u"0"_s},
        {9, u"tfScaleMaxVal"_s, u"a9"_s, u"b9"_s},
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
            QStringList(round == Round::First ? u"dvVCUiScaleMaxView"_s : u"dvVCUiScaleFixView"_s)
        );
    }
}

TEST(RecordPositions, HoldTheCropAndLoseItsCutOff)
{
    RecordBench bench(u"cropPhotos"_s, u"cropPhotos"_s, u"Edit"_s);
    const Positions always = joined(
        bench.commonPositions(),
        {
            {4, u"scCropPosition"_s, u"6"_s, u"2"_s},
            {5, u"tfXcropOffset"_s, u"a5"_s, u"b5"_s},
            {6, u"tfYcropOffset"_s, u"a6"_s, u"b6"_s},
            {10, u"pubCropType"_s, u"0"_s, u"1"_s},
        }
    );
    const Positions size = {
        {7, u"tfCropWidth"_s, u"a7"_s, u"b7"_s},
        {8, u"tfCropHeight"_s, u"a8"_s, u"b8"_s},
    };
    const Positions cutOff = {{9, u"tfCropCutOff"_s, u"a9"_s, u"b9"_s}};
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
    EXPECT_EQ(holder.views(), QStringList(u"dvVCUiCropWxHView"_s));

    bench.giveOther(joined(joined(always, size), cutOff), Round::Second);
    bench.load(Round::Second);
    bench.expectValues(Round::Second, always);
    bench.expectOther(Round::Second, joined(size, cutOff));
    EXPECT_EQ(holder.views(), QStringList(u"dvVCUiCropMinusView"_s));
}

TEST(RecordPositions, HoldTheCodePanelForBothFunctionsThatKeepIt)
{
    for (const QString& function : {u"batchQR"_s, u"batchArchive"_s}) {
        RecordBench bench(function, function, u"FileManagement"_s);
        bench.expectKept(
            {
                bench.destination(),
                {4, u"tfQRDestination"_s, u"/a4/"_s, u"/b4/"_s},
                {5, u"tfQRtext"_s, u"a5"_s, u"b5"_s},
                {6, u"tfQRName"_s, u"a6"_s, u"b6"_s},
                {7, u"tfQRSize"_s, u"a7"_s, u"b7"_s},
                {8, u"pubCodeType"_s, u"1"_s, u"0"_s},
            },
            {}
        );
    }
}

TEST(RecordPositions, HoldTheTextsOfTheUpload)
{
    RecordBench bench(u"batchUploadPhotos"_s, u"batchUploadPhotos"_s, u"FileManagement"_s);
    bench.expectKept(
        {
            {4, u"tfAddKeyword"_s, u"a4"_s, u"b4"_s},
            {5, u"tfAddTitle"_s, u"a5"_s, u"b5"_s},
            {6, u"tfAddDescription"_s, u"a6"_s, u"b6"_s},
            {7, u"cbAddToFavorite"_s, u"1"_s, u"0"_s},
        },
        {}
    );
}
