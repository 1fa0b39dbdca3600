// SPDX-License-Identifier: GPL-3.0-or-later
#include "record_bench.h"

#include <platform/foundation/literals.h>
#include <presets/gallery_templates.h>

#include "support/text_printing.h"

using namespace brenvaldo;
using test::Effects;
using test::joined;
using test::Positions;
using test::RecordBench;
using test::Round;

namespace {

/// What comes back to the control that it was kept of.
Positions restoredPositions(const RecordBench& bench)
{
    return {
        bench.destination(),
        {6, u"tfNumberOfRows"_s, u"a6"_s, u"b6"_s},
        {7, u"tfNumberOfColumns"_s, u"a7"_s, u"b7"_s},
        {8, u"tfHTMLbackgroundColor"_s, u"a8"_s, u"b8"_s},
        {9, u"tfHTMLbackgroundColorCell"_s, u"a9"_s, u"b9"_s},
        {10, u"cbPgMagnifyHooverEffectState"_s, u"1"_s, u"0"_s},
        {11, u"tfHTMLfileName"_s, u"a11"_s, u"b11"_s},
        {12, u"pubPhotoGalleryModel"_s, u"3"_s, u"1"_s},
        {13, u"tfGridWidth"_s, u"a13"_s, u"b13"_s},
        {14, u"btShowPageTitle"_s, u"1"_s, u"0"_s},
        {15, u"tfPageTitle"_s, u"a15"_s, u"b15"_s},
        {16, u"btShowTitle"_s, u"1"_s, u"0"_s},
        {17, u"tvTitle"_s, u"a17"_s, u"b17"_s},
        {18, u"tfHTMLTitleColor"_s, u"a18"_s, u"b18"_s},
        {19, u"pbTitleFontWeight"_s, u"2"_s, u"4"_s},
        {20, u"scPresetTitleTxtAlign"_s, u"2"_s, u"1"_s},
        {22, u"pbFontFamily"_s, u"9"_s, u"4"_s},
        {23, u"btShowFileName"_s, u"1"_s, u"0"_s},
        {24, u"pbFileNameFontWeight"_s, u"1"_s, u"3"_s},
        {25, u"pbPresetFileNameFontSize"_s, u"6"_s, u"5"_s},
        {26, u"scPresetFilenameTxtAlign"_s, u"1"_s, u"2"_s},
        {27, u"tfHTMLPhotoNameColor"_s, u"a27"_s, u"b27"_s},
        {29, u"pubPgMetaData"_s, u"7"_s, u"13"_s},
        {30, u"tfPgMetaDataToShow"_s, u"a30"_s, u"b30"_s},
        {31, u"tfPgMetaDataValueSep"_s, u"a31"_s, u"b31"_s},
        {32, u"tfHTMLUserExifCommentColor"_s, u"a32"_s, u"b32"_s},
        {33, u"scPresetEXIFuserCommentTxtAlgin"_s, u"2"_s, u"1"_s},
        {34, u"pbPresetExifUserCommentFontSize"_s, u"8"_s, u"7"_s},
        {35, u"pbExifUserCommentFontWeight"_s, u"4"_s, u"2"_s},
        {36, u"pubPhotoRatio"_s, u"8"_s, u"5"_s},
        {37, u"pubThumbAction"_s, u"1"_s, u"0"_s},
        {38, u"tfSmallCropWidth"_s, u"a38"_s, u"b38"_s},
        {39, u"tfSmallCropHeight"_s, u"a39"_s, u"b39"_s},
        {40, u"scImageCropThumbPos"_s, u"7"_s, u"3"_s},
        {41, u"tfCropThumbXOffset"_s, u"a41"_s, u"b41"_s},
        {42, u"tfCropThumbYOffset"_s, u"a42"_s, u"b42"_s},
        {43, u"tfSmallFramingRGBvalue"_s, u"a43"_s, u"b43"_s},
        {44, u"tfSmallFramingThickness"_s, u"a44"_s, u"b44"_s},
        {45, u"pbImageFormat"_s, u"1"_s, u"3"_s},
        {46, u"pbJPGCompression"_s, u"9"_s, u"2"_s},
        {47, u"tfThumbnailColorValue"_s, u"a47"_s, u"b47"_s},
        {48, u"tfThumbnailBorderRadius"_s, u"a48"_s, u"b48"_s},
        {49, u"tfThumbnailBorderThickness"_s, u"a49"_s, u"b49"_s},
        {52, u"tfThumbnailShadowColorValue"_s, u"a52"_s, u"b52"_s},
        {53, u"tfThumbnailShadowThickness"_s, u"a53"_s, u"b53"_s},
        {54, u"tfThumbnailShadowXOffset"_s, u"a54"_s, u"b54"_s},
        {55, u"tfThumbnailShadowYOffset"_s, u"a55"_s, u"b55"_s},
        {56, u"tfBigCropWidth"_s, u"a56"_s, u"b56"_s},
        {57, u"tfBigCropHeight"_s, u"a57"_s, u"b57"_s},
        {58, u"scImageCropBigPos"_s, u"8"_s, u"0"_s},
        {59, u"tfCropBigXOffset"_s, u"a59"_s, u"b59"_s},
        {60, u"tfCropBigYOffset"_s, u"a60"_s, u"b60"_s},
        {63, u"pbBIGImageFormat"_s, u"2"_s, u"5"_s},
        {64, u"pbBIGJPGCompression"_s, u"3"_s, u"6"_s},
        {65, u"tfHTMLLightBoxColor"_s, u"a65"_s, u"b65"_s},
        {66, u"tfHTMLLightBoxShadowColor"_s, u"a66"_s, u"b66"_s},
        {67, u"tfBoxRadius"_s, u"a67"_s, u"b67"_s},
        {68, u"tfBoxThickness"_s, u"a68"_s, u"b68"_s},
        {69, u"tfBoxShadowThickness"_s, u"a69"_s, u"b69"_s},
        {70, u"tfBoxShadowXOffset"_s, u"a70"_s, u"b70"_s},
        {71, u"tfBoxShadowYOffset"_s, u"a71"_s, u"b71"_s},
        {72, u"tfNSColorWellObjRDLightboxBgColor"_s, u"a72"_s, u"b72"_s},
        {73, u"cbCaptionStatus"_s, u"1"_s, u"0"_s},
        {74, u"myPresetNSColorWellObjBGCt"_s, u"0.25 0 1"_s, u"1 0.25 0.5"_s},
        {75, u"myPresetNSColorWellObjBGCc"_s, u"0.5 0 1"_s, u"1 0.5 0.5"_s},
        {76, u"myPresetNSColorWellObjTCt"_s, u"0.75 0 1"_s, u"1 0.75 0.5"_s},
        {77, u"myPresetNSColorWellObjPhotoNameC"_s, u"1 0 1"_s, u"1 1 0.5"_s},
        {78, u"myPresetNSColorWellObjUserExifCommentC"_s, u"0 0.25 1"_s, u"1 0 0.75"_s},
        {79, u"myPresetNSColorWellObjBsImage"_s, u"0.25 0.25 1"_s, u"1 0.25 0.75"_s},
        {80, u"cwThumbnailColor"_s, u"0.5 0.25 1"_s, u"1 0.5 0.75"_s},
        {81, u"cwThumbnailShadowColor"_s, u"0.75 0.25 1"_s, u"1 0.75 0.75"_s},
        {83, u"cwBoxColor"_s, u"1 0.25 1"_s, u"1 1 0.75"_s},
        {84, u"cwBoxShadowColor"_s, u"0 0.5 1"_s, u"1 0 1"_s},
        {85, u"ascNSColorWellObjRDLightboxBgColor"_s, u"0.25 0.5 1"_s, u"1 0.25 1"_s},
        {86, u"sliderLightboxRDBgColorOpacity"_s, u"12.500000"_s, u"87.000000"_s},
    };
}

const Positions sizeAndCaptions
    = {{21, u"pbPresetTitleFontSize"_s, u"5"_s, u"7"_s}, {28, u"btShowEXIFucd"_s, u"1"_s, u"0"_s}};

const Effects enabled = {
    {u"tfPageTitle"_s, true, false},
    {u"tfHTMLTitleColor"_s, true, false},
    {u"myPresetNSColorWellObjTCt"_s, true, false},
    {u"pbTitleFontWeight"_s, true, false},
    {u"scPresetTitleTxtAlign"_s, true, false},
    {u"pbPresetTitleFontSize"_s, true, false},
    {u"pbFontFamily"_s, true, false},
    {u"pbFileNameFontWeight"_s, true, false},
    {u"pbPresetFileNameFontSize"_s, true, false},
    {u"scPresetFilenameTxtAlign"_s, true, false},
    {u"pubPgMetaData"_s, true, false},
    {u"tfHTMLPhotoNameColor"_s, true, false},
    {u"myPresetNSColorWellObjPhotoNameC"_s, true, false},
    {u"tfPgMetaDataValueSep"_s, true, false},
    {u"tfHTMLUserExifCommentColor"_s, true, false},
    {u"scPresetEXIFuserCommentTxtAlgin"_s, true, false},
    {u"pbPresetExifUserCommentFontSize"_s, true, false},
    {u"pbExifUserCommentFontWeight"_s, true, false},
    {u"myPresetNSColorWellObjUserExifCommentC"_s, true, false},
};

} // namespace

TEST(GalleryPositions, HoldThePanel)
{
    RecordBench bench(u"htmlExport"_s, u"htmlExport"_s, u"photoGallery"_s);
    const Positions restored = restoredPositions(bench);
    const Positions written = joined(restored, sizeAndCaptions);
    for (const Round round : {Round::First, Round::Second}) {
        bench.give(written, round);
        bench.saveRound(round);
        bench.expectRow(round, written);
    }
    for (const Round round : {Round::First, Round::Second}) {
        bench.giveOther(written, round);
        bench.load(round, enabled);
        bench.expectValues(round, restored);
        // The size takes the index of the weight, and the box of the captions stays.
        EXPECT_EQ(bench.read(u"pbPresetTitleFontSize"_s), bench.read(u"pbTitleFontWeight"_s));
        EXPECT_EQ(bench.read(u"btShowEXIFucd"_s), round == Round::First ? u"0"_s : u"1"_s);
    }
}

TEST(GalleryPositions, DisableTheColourOfFileNamesWhenCaptionsAreHidden)
{
    RecordBench bench(u"htmlExport"_s, u"htmlExport"_s, u"photoGallery"_s);
    bench.give(u"btShowFileName"_s, u"1"_s);
    bench.give(u"btShowEXIFucd"_s, u"0"_s);
    bench.saveRound(Round::First);
    bench.load(
        Round::First,
        {{u"tfHTMLPhotoNameColor"_s, false, false},
         {u"myPresetNSColorWellObjPhotoNameC"_s, false, false},
         {u"pbFileNameFontWeight"_s, true, true}}
    );
}

TEST(GalleryPositions, LoseTheZerosOfColoursInColumnsOfNumbers)
{
    RecordBench bench(u"htmlExport"_s, u"htmlExport"_s, u"photoGallery"_s);
    bench.give(u"tfHTMLPhotoNameColor"_s, u"001122"_s);
    bench.give(u"tfHTMLUserExifCommentColor"_s, u"000000"_s);
    bench.give(u"tfHTMLTitleColor"_s, u"001122"_s);
    bench.saveRound(Round::First);
    bench.load(Round::First);
    EXPECT_EQ(bench.read(u"tfHTMLPhotoNameColor"_s), u"1122"_s);
    EXPECT_EQ(bench.read(u"tfHTMLUserExifCommentColor"_s), u"0"_s);
    EXPECT_EQ(bench.read(u"tfHTMLTitleColor"_s), u"001122"_s);
}
