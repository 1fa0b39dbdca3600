// SPDX-License-Identifier: GPL-3.0-or-later
#include "gallery_templates.h"

#include "gallery_dependents.h"
#include "load_effects.h"

#include <platform/foundation/literals.h>

#include <array>

namespace brenvaldo::presets {

namespace {

constexpr int templateCount = 4;

template <class Value>
using OfEach = std::array<Value, templateCount>;

struct TemplateText
{
    controls::TextField panels::GalleryPanel::*field;
    OfEach<const char16_t*> values;
};

struct TemplateIndex
{
    controls::PopUpButton panels::GalleryPanel::*popUp;
    OfEach<int> values;
};

struct TemplateSegment
{
    controls::SegmentedControl panels::GalleryPanel::*segments;
    OfEach<int> values;
};

using Panel = panels::GalleryPanel;

const TemplateText templateTexts[] = {
    {&Panel::tfNumberOfRows, {u"6", u"6", u"6", u"4"}},
    {&Panel::tfNumberOfColumns, {u"4", u"6", u"6", u"6"}},
    {&Panel::tfHTMLbackgroundColor, {u"092B4F", u"EDF0EF", u"EDF0EF", u"6B89CB"}},
    {&Panel::tfHTMLbackgroundColorCell, {u"000000", u"EDF0EF", u"EDF0EF", u"6B89CB"}},
    {&Panel::tfHTMLTitleColor, {u"FFFFFF", u"37677B", u"37677B", u"8EBDFB"}},
    {&Panel::tfHTMLPhotoNameColor, {u"FFFFFF", u"37677B", u"37677B", u"1C305E"}},
    {&Panel::tfPgMetaDataToShow,
     {u"EXIF User Comment",
      u"Exif User Comment",
      u"EXIF User Comment",
      u"EXIF User Comment;EXIF Creation Date"}},
    {&Panel::tfPgMetaDataValueSep, {u"; ", u";", u";", u"<br>"}},
    {&Panel::tfHTMLUserExifCommentColor, {u"3661D0", u"37677B", u"37677B", u"FFFFFF"}},
    {&Panel::tfSmallCropWidth, {u"450", u"450", u"450", u"550"}},
    {&Panel::tfSmallCropHeight, {u"300", u"300", u"300", u"550"}},
    {&Panel::tfSmallFramingRGBvalue, {u"000000", u"FFFFFF", u"FFFFFF", u"FFFFFF"}},
    {&Panel::tfSmallFramingThickness, {u"10", u"0", u"0", u"0"}},
    {&Panel::tfThumbnailColorValue, {u"000000", u"37677B", u"37677B", u"6B89CB"}},
    {&Panel::tfThumbnailBorderRadius, {u"0", u"10", u"5", u"5"}},
    {&Panel::tfThumbnailBorderThickness, {u"0", u"5", u"3", u"3"}},
    {&Panel::tfThumbnailShadowColorValue, {u"FFFFFF", u"8F8F8F", u"A3A397", u"EAEBDC"}},
    {&Panel::tfThumbnailShadowThickness, {u"0", u"5", u"15", u"15"}},
    {&Panel::tfThumbnailShadowXOffset, {u"0", u"2", u"5", u"0"}},
    {&Panel::tfThumbnailShadowYOffset, {u"0", u"2", u"5", u"10"}},
    {&Panel::tfBigCropWidth, {u"1024", u"1200", u"1200", u"1200"}},
    {&Panel::tfBigCropHeight, {u"1024", u"1200", u"1200", u"1200"}},
    {&Panel::tfHTMLLightBoxColor, {u"FFFFFF", u"37677B", u"FFFFFF", u"FFFFFF"}},
    {&Panel::tfHTMLLightBoxShadowColor, {u"000000", u"000000", u"FFFFFF", u"000000"}},
    {&Panel::tfBoxRadius, {u"1", u"20", u"0", u"55"}},
    {&Panel::tfBoxThickness, {u"5", u"20", u"0", u"5"}},
    {&Panel::tfBoxShadowThickness, {u"20", u"20", u"0", u"25"}},
    {&Panel::tfBoxShadowXOffset, {u"0", u"0", u"0", u"10"}},
    {&Panel::tfBoxShadowYOffset, {u"0", u"0", u"0", u"10"}},
    {&Panel::tfNSColorWellObjRDLightboxBgColor, {u"000000", u"37677B", u"183F7D", u"30373C"}},
};

const TemplateIndex templateIndexes[] = {
    {&Panel::pbFontFamily, {7, 6, 6, 6}},
    {&Panel::pubPgMetaData, {0, 0, 0, 1}},
    {&Panel::pbExifUserCommentFontSize, {3, 0, 0, 0}},
    {&Panel::pubPhotoRatio, {2, 2, 2, 1}},
    {&Panel::pubThumbAction, {0, 0, 1, 0}},
};

const TemplateSegment templateSegments[] = {
    {&Panel::scFilenameTxtAlign, {0, 2, 2, 1}},
    {&Panel::scEXIFuserCommentTxtAlgin, {0, 2, 2, 1}},
};

constexpr OfEach<double> boxOpacities = {50, 70, 75, 85};

QString fillerText(const QString& color)
{
    return u"<br><font style=\"font-size:12px;font-weight:100;\" color=\"%1\">Lorem ipsum dolor "
           u"sit "
           "amet, consectetur adipiscing elit, sed do eiusmod tempor incididunt ut labore et "
           "dolore "
           "magna aliqua. Ut enim ad minim veniam, quis nostrud exercitation ullamco laboris nisi "
           "ut aliquip ex ea commodo consequat.</font>"_s.arg(color);
}

QString headingOf(int index)
{
    switch (index) {
    case 0:
        return u"Bordeaux<br><font style=\"font-weight:300;\" color=\"#FF6666\">Cité du vin et "
               "plus...</font>"_s;
    case 1:
        return u"La Perche et les percherons<br>Parc Naturel Régional du Perche."_s
            + fillerText(u"#37677B"_s);
    case 2:
        return u"Venice<br>Top 25 Highlights."_s + fillerText(u"#37677B"_s);
    default:
        return u"Trendy Bordeaux<br>Top 10 Highlights."_s + fillerText(u"#8EBDFB"_s);
    }
}

void applyCheckBoxes(panels::GalleryPanel& gallery)
{
    for (controls::CheckBox* box :
         {&gallery.cbMagnifyHooverEffectState,
          &gallery.btShowPageTitle,
          &gallery.btShowTitle,
          &gallery.btShowFileName,
          &gallery.cbPgShowMetaData})
        box->setState(1);
    gallery.cbCaptionStatus.setState(0);

    setAllEnabled({&gallery.tfPageTitle}, true);
    setAllEnabled(headingDependents(gallery), true);
    setAllEnabled(fileNameDependents(gallery), true);
    setAllEnabled(captionDependents(gallery), true);
    setAllEnabled(
        {&gallery.tfHTMLPhotoNameColor, &gallery.myPresetNSColorWellObjPhotoNameC}, false
    );
}

void applyCommonValues(panels::GalleryPanel& gallery)
{
    const QString name = u"Responsive photo gallery by Brenvaldo9"_s;
    gallery.tfHTMLfileName.setStringValue(name);
    gallery.tfPageTitle.setStringValue(name);
    gallery.tfGridWidth.setStringValue(u"80"_s);
    gallery.pbTitleFontWeight.selectItemAtIndex(3);
    gallery.pbFileNameFontWeight.selectItemAtIndex(3);
    gallery.pbTitleFontSize.selectItemAtIndex(6);
    gallery.pbFileNameFontSize.selectItemAtIndex(2);
    gallery.pbExifUserCommentFontWeight.selectItemAtIndex(1);
    gallery.pbImageFormat.selectItemAtIndex(0);
    gallery.pbBIGImageFormat.selectItemAtIndex(0);
    gallery.pbJPGCompression.selectItemAtIndex(7);
    gallery.pbBIGJPGCompression.selectItemAtIndex(7);
    gallery.scTitleTxtAlign.setSelectedSegment(0);
    gallery.scImageCropThumbPos.setSelectedSegment(4);
    gallery.scImageCropBigPos.setSelectedSegment(4);
    for (controls::TextField* offset :
         {&gallery.tfCropThumbXOffset,
          &gallery.tfCropThumbYOffset,
          &gallery.tfCropBigXOffset,
          &gallery.tfCropBigYOffset})
        offset->setStringValue(u"0"_s);
}

void applyOwnValues(std::size_t index, panels::GalleryPanel& gallery)
{
    for (const TemplateText& text : templateTexts)
        (gallery.*text.field).setStringValue(QString::fromUtf16(text.values.at(index)));
    for (const TemplateIndex& choice : templateIndexes)
        (gallery.*choice.popUp).selectItemAtIndex(choice.values.at(index));
    for (const TemplateSegment& choice : templateSegments)
        (gallery.*choice.segments).setSelectedSegment(choice.values.at(index));
    gallery.sliderLightboxRDBgColorOpacity.setDoubleValue(boxOpacities.at(index));
}

} // namespace

void applyGalleryTemplate(int index, panels::GalleryPanel& gallery)
{
    if (index < 0 || index >= templateCount)
        return;
    applyCheckBoxes(gallery);
    applyCommonValues(gallery);
    applyOwnValues(static_cast<std::size_t>(index), gallery);
    gallery.tvTitle.setStringValue(headingOf(index));
}

} // namespace brenvaldo::presets
