// SPDX-License-Identifier: GPL-3.0-or-later
#include "record_bench.h"

#include <platform/foundation/literals.h>
#include <presets/gallery_templates.h>

#include "support/text_printing.h"

using namespace brenvaldo;

namespace {

struct TemplateValue
{
    QString control;
    QStringList values; ///< of the four templates
};

/// Written as `RecordBench` reads them.
QList<TemplateValue> templateValues()
{
    return {
        {u"cbPgMagnifyHooverEffectState"_s, {u"1"_s, u"1"_s, u"1"_s, u"1"_s}},
        {u"btShowPageTitle"_s, {u"1"_s, u"1"_s, u"1"_s, u"1"_s}},
        {u"btShowTitle"_s, {u"1"_s, u"1"_s, u"1"_s, u"1"_s}},
        {u"btShowFileName"_s, {u"1"_s, u"1"_s, u"1"_s, u"1"_s}},
        {u"btShowEXIFucd"_s, {u"1"_s, u"1"_s, u"1"_s, u"1"_s}},
        {u"cbCaptionStatus"_s, {u"0"_s, u"0"_s, u"0"_s, u"0"_s}},
        {u"tfHTMLfileName"_s,
         {u"Responsive photo gallery by Brenvaldo9"_s,
          u"Responsive photo gallery by Brenvaldo9"_s,
          u"Responsive photo gallery by Brenvaldo9"_s,
          u"Responsive photo gallery by Brenvaldo9"_s}},
        {u"tfPageTitle"_s,
         {u"Responsive photo gallery by Brenvaldo9"_s,
          u"Responsive photo gallery by Brenvaldo9"_s,
          u"Responsive photo gallery by Brenvaldo9"_s,
          u"Responsive photo gallery by Brenvaldo9"_s}},
        {u"tfGridWidth"_s, {u"80"_s, u"80"_s, u"80"_s, u"80"_s}},
        {u"pbTitleFontWeight"_s, {u"3"_s, u"3"_s, u"3"_s, u"3"_s}},
        {u"pbFileNameFontWeight"_s, {u"3"_s, u"3"_s, u"3"_s, u"3"_s}},
        {u"pbPresetTitleFontSize"_s, {u"6"_s, u"6"_s, u"6"_s, u"6"_s}},
        {u"pbPresetFileNameFontSize"_s, {u"2"_s, u"2"_s, u"2"_s, u"2"_s}},
        {u"pbExifUserCommentFontWeight"_s, {u"1"_s, u"1"_s, u"1"_s, u"1"_s}},
        {u"pbImageFormat"_s, {u"0"_s, u"0"_s, u"0"_s, u"0"_s}},
        {u"pbBIGImageFormat"_s, {u"0"_s, u"0"_s, u"0"_s, u"0"_s}},
        {u"pbJPGCompression"_s, {u"7"_s, u"7"_s, u"7"_s, u"7"_s}},
        {u"pbBIGJPGCompression"_s, {u"7"_s, u"7"_s, u"7"_s, u"7"_s}},
        {u"scPresetTitleTxtAlign"_s, {u"0"_s, u"0"_s, u"0"_s, u"0"_s}},
        {u"scImageCropThumbPos"_s, {u"4"_s, u"4"_s, u"4"_s, u"4"_s}},
        {u"scImageCropBigPos"_s, {u"4"_s, u"4"_s, u"4"_s, u"4"_s}},
        {u"tfCropThumbXOffset"_s, {u"0"_s, u"0"_s, u"0"_s, u"0"_s}},
        {u"tfCropThumbYOffset"_s, {u"0"_s, u"0"_s, u"0"_s, u"0"_s}},
        {u"tfCropBigXOffset"_s, {u"0"_s, u"0"_s, u"0"_s, u"0"_s}},
        {u"tfCropBigYOffset"_s, {u"0"_s, u"0"_s, u"0"_s, u"0"_s}},
        {u"sliderLightboxRDBgColorOpacity"_s,
         {u"50.000000"_s, u"70.000000"_s, u"75.000000"_s, u"85.000000"_s}},
        {u"tfNumberOfRows"_s, {u"6"_s, u"6"_s, u"6"_s, u"4"_s}},
        {u"tfNumberOfColumns"_s, {u"4"_s, u"6"_s, u"6"_s, u"6"_s}},
        {u"tfHTMLbackgroundColor"_s, {u"092B4F"_s, u"EDF0EF"_s, u"EDF0EF"_s, u"6B89CB"_s}},
        {u"tfHTMLbackgroundColorCell"_s, {u"000000"_s, u"EDF0EF"_s, u"EDF0EF"_s, u"6B89CB"_s}},
        {u"tfHTMLTitleColor"_s, {u"FFFFFF"_s, u"37677B"_s, u"37677B"_s, u"8EBDFB"_s}},
        {u"pbFontFamily"_s, {u"7"_s, u"6"_s, u"6"_s, u"6"_s}},
        {u"scPresetFilenameTxtAlign"_s, {u"0"_s, u"2"_s, u"2"_s, u"1"_s}},
        {u"tfHTMLPhotoNameColor"_s, {u"FFFFFF"_s, u"37677B"_s, u"37677B"_s, u"1C305E"_s}},
        {u"pubPgMetaData"_s, {u"0"_s, u"0"_s, u"0"_s, u"1"_s}},
        {u"tfPgMetaDataToShow"_s,
         {u"EXIF User Comment"_s,
          u"Exif User Comment"_s,
          u"EXIF User Comment"_s,
          u"EXIF User Comment;EXIF Creation Date"_s}},
        {u"tfPgMetaDataValueSep"_s, {u"; "_s, u";"_s, u";"_s, u"<br>"_s}},
        {u"tfHTMLUserExifCommentColor"_s, {u"3661D0"_s, u"37677B"_s, u"37677B"_s, u"FFFFFF"_s}},
        {u"scPresetEXIFuserCommentTxtAlgin"_s, {u"0"_s, u"2"_s, u"2"_s, u"1"_s}},
        {u"pbPresetExifUserCommentFontSize"_s, {u"3"_s, u"0"_s, u"0"_s, u"0"_s}},
        {u"pubPhotoRatio"_s, {u"2"_s, u"2"_s, u"2"_s, u"1"_s}},
        {u"pubThumbAction"_s, {u"0"_s, u"0"_s, u"1"_s, u"0"_s}},
        {u"tfSmallCropWidth"_s, {u"450"_s, u"450"_s, u"450"_s, u"550"_s}},
        {u"tfSmallCropHeight"_s, {u"300"_s, u"300"_s, u"300"_s, u"550"_s}},
        {u"tfSmallFramingRGBvalue"_s, {u"000000"_s, u"FFFFFF"_s, u"FFFFFF"_s, u"FFFFFF"_s}},
        {u"tfSmallFramingThickness"_s, {u"10"_s, u"0"_s, u"0"_s, u"0"_s}},
        {u"tfThumbnailColorValue"_s, {u"000000"_s, u"37677B"_s, u"37677B"_s, u"6B89CB"_s}},
        {u"tfThumbnailBorderRadius"_s, {u"0"_s, u"10"_s, u"5"_s, u"5"_s}},
        {u"tfThumbnailBorderThickness"_s, {u"0"_s, u"5"_s, u"3"_s, u"3"_s}},
        {u"tfThumbnailShadowColorValue"_s, {u"FFFFFF"_s, u"8F8F8F"_s, u"A3A397"_s, u"EAEBDC"_s}},
        {u"tfThumbnailShadowThickness"_s, {u"0"_s, u"5"_s, u"15"_s, u"15"_s}},
        {u"tfThumbnailShadowXOffset"_s, {u"0"_s, u"2"_s, u"5"_s, u"0"_s}},
        {u"tfThumbnailShadowYOffset"_s, {u"0"_s, u"2"_s, u"5"_s, u"10"_s}},
        {u"tfBigCropWidth"_s, {u"1024"_s, u"1200"_s, u"1200"_s, u"1200"_s}},
        {u"tfBigCropHeight"_s, {u"1024"_s, u"1200"_s, u"1200"_s, u"1200"_s}},
        {u"tfHTMLLightBoxColor"_s, {u"FFFFFF"_s, u"37677B"_s, u"FFFFFF"_s, u"FFFFFF"_s}},
        {u"tfHTMLLightBoxShadowColor"_s, {u"000000"_s, u"000000"_s, u"FFFFFF"_s, u"000000"_s}},
        {u"tfBoxRadius"_s, {u"1"_s, u"20"_s, u"0"_s, u"55"_s}},
        {u"tfBoxThickness"_s, {u"5"_s, u"20"_s, u"0"_s, u"5"_s}},
        {u"tfBoxShadowThickness"_s, {u"20"_s, u"20"_s, u"0"_s, u"25"_s}},
        {u"tfBoxShadowXOffset"_s, {u"0"_s, u"0"_s, u"0"_s, u"10"_s}},
        {u"tfBoxShadowYOffset"_s, {u"0"_s, u"0"_s, u"0"_s, u"10"_s}},
        {u"tfNSColorWellObjRDLightboxBgColor"_s,
         {u"000000"_s, u"37677B"_s, u"183F7D"_s, u"30373C"_s}},
    };
}

/// The panel after a template has been chosen; no control has the template's value before.
class GalleryTemplate : public testing::TestWithParam<int>
{
protected:
    GalleryTemplate()
    {
        for (const TemplateValue& value : templateValues())
            bench.give(value.control, otherThan(value.values[GetParam()]));
        presets::applyGalleryTemplate(GetParam(), bench.panels.vwHtmlExport);
    }

    static QString otherThan(const QString& value)
    {
        if (value == u"0")
            return u"1"_s;
        return value.endsWith(u".000000"_s) ? u"1.000000"_s : u"0"_s;
    }

    test::RecordBench bench{u"htmlExport"_s, u"htmlExport"_s, u"photoGallery"_s};
};

} // namespace

TEST_P(GalleryTemplate, GivesItsValues)
{
    for (const TemplateValue& value : templateValues())
        EXPECT_EQ(bench.read(value.control), value.values[GetParam()])
            << value.control.toStdString();
}

TEST_P(GalleryTemplate, EnablesAllButTheColourOfFileNames)
{
    const panels::GalleryPanel& gallery = bench.panels.vwHtmlExport;
    EXPECT_TRUE(gallery.tfPageTitle.isEnabled());
    EXPECT_TRUE(gallery.pbFontFamily.isEnabled());
    EXPECT_TRUE(gallery.pbFileNameFontSize.isEnabled());
    EXPECT_TRUE(gallery.pubPgMetaData.isEnabled());
    EXPECT_FALSE(gallery.tfHTMLPhotoNameColor.isEnabled());
    EXPECT_FALSE(gallery.myPresetNSColorWellObjPhotoNameC.isEnabled());
}

TEST_P(GalleryTemplate, BringsAHeadingOfItsOwn)
{
    const QStringList beginnings
        = {u"Bordeaux<br>"_s,
           u"La Perche et les percherons<br>Parc Naturel Régional du Perche."_s,
           u"Venice<br>Top 25 Highlights."_s,
           u"Trendy Bordeaux<br>Top 10 Highlights."_s};
    const QStringList colors = {u"#FF6666"_s, u"#37677B"_s, u"#37677B"_s, u"#8EBDFB"_s};
    const QString heading = bench.panels.vwHtmlExport.tvTitle.stringValue();
    EXPECT_TRUE(heading.startsWith(beginnings[GetParam()]));
    EXPECT_TRUE(heading.contains(u"color=\""_s + colors[GetParam()] + u'"'));
}

INSTANTIATE_TEST_SUITE_P(Four, GalleryTemplate, testing::Range(0, 4));

TEST(GalleryTemplates, AreNoMoreThanFour)
{
    for (const int index : {4, 5, -1}) {
        test::RecordBench bench(u"htmlExport"_s, u"htmlExport"_s, u"photoGallery"_s);
        QList<TemplateValue> before = templateValues();
        for (TemplateValue& value : before)
            value.values = {bench.read(value.control)};
        presets::applyGalleryTemplate(index, bench.panels.vwHtmlExport);
        for (const TemplateValue& value : before)
            EXPECT_EQ(bench.read(value.control), value.values.first());
    }
}

TEST(GalleryTemplates, LeaveTheColourWells)
{
    test::RecordBench bench(u"htmlExport"_s, u"htmlExport"_s, u"photoGallery"_s);
    bench.give(u"cwThumbnailColor"_s, u"1 0.5 0"_s);
    presets::applyGalleryTemplate(1, bench.panels.vwHtmlExport);
    EXPECT_EQ(bench.read(u"cwThumbnailColor"_s), u"1 0.5 0"_s);
}
