// SPDX-License-Identifier: GPL-3.0-or-later
#include "gallery_panel.h"

#include "common_rows.h"
#include "field_roles.h"

#include <platform/foundation/literals.h>

#include <vector>

namespace brenvaldo::panels {

namespace {

Row sizeRow(
    const QString& label,
    controls::TextField& width,
    controls::TextField& height,
    const QString& hint = {}
)
{
    return {
        .label = label,
        .fields
        = {{.control = &width, .unit = u"px"_s, .accessibleName = label + u", width"_s},
           {.control = &height, .unit = u"px"_s, .accessibleName = label + u", height"_s}},
        .hint = hint};
}

/// Two numbers of pixels side by side, each named by its own word.
Row pairRow(
    const QString& label,
    controls::TextField& first,
    const QString& firstName,
    controls::TextField& second,
    const QString& secondName
)
{
    return {
        .label = label,
        .fields
        = {{.control = &first, .unit = u"px"_s, .accessibleName = firstName},
           {.control = &second, .unit = u"px"_s, .accessibleName = secondName}}};
}

Row fontRow(const QString& of, controls::PopUpButton& size, controls::PopUpButton& weight)
{
    return {
        .label = u"Letters"_s,
        .fields
        = {{.control = &size, .accessibleName = of + u", size"_s},
           {.control = &weight, .accessibleName = of + u", weight"_s}}};
}

Row oneRow(const QString& label, controls::Control& control)
{
    return {.label = label, .fields = {{.control = &control}}};
}

Row formatRow(controls::PopUpButton& format, controls::PopUpButton& compression)
{
    return {
        .label = u"File type"_s,
        .fields
        = {{.control = &format}, {.control = &compression, .accessibleName = u"JPEG quality"_s}}};
}

// A hex field feeds the well of its tag, a well the field of its own; the two are numbered apart,
// and three of the fields feed none.
struct ColorPair
{
    controls::TextField& field;
    QString fieldName;
    int fieldTag;
    controls::ColorWell& well;
    QString wellName;
    int wellTag;
};

using ColorPairs = std::vector<ColorPair>;

constexpr int feedsNoWell = 3;

ColorPairs pageColors(GalleryPanel& panel)
{
    return {
        {panel.tfHTMLbackgroundColor,
         u"tfNSColorWellObjBGCt"_s,
         0,
         panel.myPresetNSColorWellObjBGCt,
         u"ascNSColorWellObjBGCt"_s,
         0},
        {panel.tfHTMLbackgroundColorCell,
         u"tfNSColorWellObjBGCc"_s,
         2,
         panel.myPresetNSColorWellObjBGCc,
         u"ascNSColorWellObjBGCc"_s,
         1},
        {panel.tfHTMLTitleColor,
         u"tfNSColorWellObjTCt"_s,
         1,
         panel.myPresetNSColorWellObjTCt,
         u"ascNSColorWellObjTCt"_s,
         3},
        {panel.tfHTMLPhotoNameColor,
         u"tfNSColorWellObjPhotoNameCt"_s,
         6,
         panel.myPresetNSColorWellObjPhotoNameC,
         u"ascNSColorWellObjPhotoNameCt"_s,
         4},
        {panel.tfHTMLUserExifCommentColor,
         u"tfNSColorWellObjUserExifCommentCt"_s,
         feedsNoWell,
         panel.myPresetNSColorWellObjUserExifCommentC,
         {},
         5},
    };
}

ColorPairs thumbnailColors(GalleryPanel& panel)
{
    return {
        {panel.tfSmallFramingRGBvalue,
         u"tfNSColorWellObjBsImage"_s,
         4,
         panel.cwNSColorWellObjBsImage,
         u"ascNSColorWellObjBsImage"_s,
         6},
        {panel.tfThumbnailColorValue,
         u"tfNSColorWellObjThumbnail"_s,
         11,
         panel.cwThumbnailColor,
         u"ascNSColorWellObjThumbnail"_s,
         7},
        {panel.tfThumbnailShadowColorValue,
         u"tfNSColorWellObjThumbnailShadow"_s,
         12,
         panel.cwThumbnailShadowColor,
         u"ascNSColorWellObjThumbnailShadow"_s,
         8},
    };
}

ColorPairs largePictureColors(GalleryPanel& panel)
{
    return {
        {panel.tfBigFramingRGBvalue,
         u"tfNSColorWellObjBbImage"_s,
         5,
         panel.cwNSColorWellObjBbImage,
         u"ascNSColorWellObjBbImage"_s,
         9},
        {panel.tfHTMLLightBoxColor,
         u"tfNSColorWellObjLightBox"_s,
         feedsNoWell,
         panel.cwBoxColor,
         {},
         10},
        {panel.tfHTMLLightBoxShadowColor,
         u"tfNSColorWellObjLightBoxShadow"_s,
         feedsNoWell,
         panel.cwBoxShadowColor,
         {},
         11},
        {panel.tfNSColorWellObjRDLightboxBgColor,
         {},
         20,
         panel.ascNSColorWellObjRDLightboxBgColor,
         {},
         12},
    };
}

void pairColors(const ColorPairs& pairs)
{
    for (const ColorPair& pair : pairs) {
        makeHexField(pair.field, pair.fieldTag);
        if (!pair.fieldName.isEmpty())
            pair.field.addAlias(pair.fieldName);
        pair.well.setTag(pair.wellTag);
        pair.well.addAction(u"cColorWellHandling.hCallHEXfromColorwell"_s);
        if (!pair.wellName.isEmpty())
            pair.well.addAlias(pair.wellName);
    }
}

} // namespace

GalleryPanel::GalleryPanel()
    : PanelView(u"vwHtmlExport"_s)
{
    giveAliases();
    giveActions();
    pairColors();
    setLayout(joined(
        {pageRows(),
         headingRows(),
         fileNameRows(),
         captionRows(),
         thumbnailRows(),
         thumbnailLookRows(),
         largePictureRows(),
         boxRows(),
         patternImageRows()}
    ));
}

void GalleryPanel::giveAliases()
{
    pubPhotoGalleryModel.addAlias(u"pubTemplateChoice"_s);
    tfHTMLfileName.addAlias(u"tfHtmlFileName"_s);
    pbTitleFontSize.addAlias(u"pbPresetTitleFontSize"_s);
    scTitleTxtAlign.addAlias(u"scPresetTitleTxtAlign"_s);
    pbFileNameFontSize.addAlias(u"pbPresetFileNameFontSize"_s);
    scFilenameTxtAlign.addAlias(u"scPresetFilenameTxtAlign"_s);
    cbPgShowMetaData.addAlias(u"btShowEXIFucd"_s);
    pbExifUserCommentFontSize.addAlias(u"pbPresetExifUserCommentFontSize"_s);
    scEXIFuserCommentTxtAlgin.addAlias(u"scPresetEXIFuserCommentTxtAlgin"_s);
    cbMagnifyHooverEffectState.addAlias(u"cbPgMagnifyHooverEffectState"_s);
    cwNSColorWellObjBsImage.addAlias(u"myPresetNSColorWellObjBsImage"_s);
    cwNSColorWellObjBbImage.addAlias(u"myPresetNSColorWellObjBbImage"_s);
    tfThumbnailColorValue.addAlias(u"tfHTMLThumbnailColor"_s);
    tfThumbnailBorderThickness.addAlias(u"tfThumbnailThickness"_s);
    tfThumbnailBorderRadius.addAlias(u"tfThumbnailRadius"_s);
    tfHTMLLightBoxColor.addAlias(u"tfBoxColorValue"_s);
}

void GalleryPanel::giveActions()
{
    pubPhotoGalleryModel.addAction(u"cGUIcontrols.hChooseHTMLExportTemplate"_s);
    pubPhotoRatio.addAction(u"cResponsiveDesign.hCallForPhotoRatioCalc"_s);
    for (controls::TextField* field : {&tfSmallCropWidth, &tfSmallCropHeight})
        field->addAction(u"cResponsiveDesign.controlTextDidEndEditing"_s);
}

void GalleryPanel::pairColors()
{
    for (const ColorPairs& pairs :
         {pageColors(*this), thumbnailColors(*this), largePictureColors(*this)})
        panels::pairColors(pairs);
}

Layout GalleryPanel::pageRows()
{
    return {
        {oneRow(u"Template"_s, pubPhotoGalleryModel)},
        {textRow(u"Page name"_s, tfHTMLfileName)},
        {Row{.fields = {{.control = &btShowPageTitle}}}},
        {textRow(u"Window title"_s, tfPageTitle)},
        {textRow(u"Page width"_s, tfGridWidth, u"%"_s)},
        {Row{
            .label = u"Grid"_s,
            .fields
            = {{.control = &tfNumberOfColumns, .accessibleName = u"Columns"_s},
               {.control = &tfNumberOfRows, .accessibleName = u"Rows"_s}},
            .hint = u"Columns and rows. A selection that just fills its pages gives no page."_s}},
        {colorRow(u"Page colour"_s, myPresetNSColorWellObjBGCt, tfHTMLbackgroundColor)},
        {colorRow(u"Cell colour"_s, myPresetNSColorWellObjBGCc, tfHTMLbackgroundColorCell)},
    };
}

Layout GalleryPanel::headingRows()
{
    return {
        {Heading{u"Heading"_s}},
        {Row{.fields = {{.control = &btShowTitle}}}},
        {Row{
            .label = u"Text"_s,
            .fields = {{.control = &tvTitle}},
            .hint = u"HTML is kept as it is."_s}},
        {oneRow(u"Font"_s, pbFontFamily)},
        {fontRow(u"Heading"_s, pbTitleFontSize, pbTitleFontWeight)},
        {colorRow(u"Colour"_s, myPresetNSColorWellObjTCt, tfHTMLTitleColor)},
        {oneRow(u"Alignment"_s, scTitleTxtAlign)},
    };
}

Layout GalleryPanel::fileNameRows()
{
    return {
        {Heading{u"File names"_s}},
        {Row{.fields = {{.control = &btShowFileName}}}},
        {fontRow(u"File names"_s, pbFileNameFontSize, pbFileNameFontWeight)},
        {colorRow(u"Colour"_s, myPresetNSColorWellObjPhotoNameC, tfHTMLPhotoNameColor)},
        {oneRow(u"Alignment"_s, scFilenameTxtAlign)},
    };
}

Layout GalleryPanel::captionRows()
{
    return {
        {Heading{u"Captions"_s}},
        {Row{.fields = {{.control = &cbPgShowMetaData}}}},
        {Row{
            .label = u"Metadata"_s,
            .fields
            = {{.control = &pubPgMetaData},
               {.control = &btnPgAddMetaData, .width = Field::Width::Narrow},
               {.control = &btnPgClearMetaData, .width = Field::Width::Narrow}}}},
        {Row{
            .label = u"Shown"_s,
            .fields = {{.control = &tfPgMetaDataToShow}},
            .hint = u"Parted by \";\"; what a photo does not have is left out."_s}},
        {textRow(u"Separator"_s, tfPgMetaDataValueSep)},
        {fontRow(u"Captions"_s, pbExifUserCommentFontSize, pbExifUserCommentFontWeight)},
        {colorRow(u"Colour"_s, myPresetNSColorWellObjUserExifCommentC, tfHTMLUserExifCommentColor)},
        {oneRow(u"Alignment"_s, scEXIFuserCommentTxtAlgin)},
    };
}

Layout GalleryPanel::thumbnailRows()
{
    return {
        {Heading{u"Thumbnails"_s}},
        {oneRow(u"Ratio"_s, pubPhotoRatio)},
        {oneRow(u"Action"_s, pubThumbAction)},
        {sizeRow(u"Size"_s, tfSmallCropWidth, tfSmallCropHeight)},
        {oneRow(u"Cut from"_s, scImageCropThumbPos)},
        {offsetRow(tfCropThumbXOffset, tfCropThumbYOffset, {})},
        {colorRow(u"Frame"_s, cwNSColorWellObjBsImage, tfSmallFramingRGBvalue)},
        {textRow(u"Frame width"_s, tfSmallFramingThickness, u"px"_s)},
        {formatRow(pbImageFormat, pbJPGCompression)},
    };
}

Layout GalleryPanel::thumbnailLookRows()
{
    return {
        {Heading{u"Thumbnails on the page"_s}},
        {Row{.fields = {{.control = &cbMagnifyHooverEffectState}}}},
        {colorRow(u"Border"_s, cwThumbnailColor, tfThumbnailColorValue)},
        {pairRow(
            u"Width, radius"_s,
            tfThumbnailBorderThickness,
            u"Width of the border"_s,
            tfThumbnailBorderRadius,
            u"Radius of the corners"_s
        )},
        {colorRow(u"Shadow"_s, cwThumbnailShadowColor, tfThumbnailShadowColorValue)},
        {textRow(u"Shadow blur"_s, tfThumbnailShadowThickness, u"px"_s)},
        {pairRow(
            u"Shadow offset"_s,
            tfThumbnailShadowXOffset,
            u"Shadow to the right"_s,
            tfThumbnailShadowYOffset,
            u"Shadow down"_s
        )},
    };
}

Layout GalleryPanel::largePictureRows()
{
    return {
        {Heading{u"Large pictures"_s}},
        {sizeRow(u"Size"_s, tfBigCropWidth, tfBigCropHeight)},
        {oneRow(u"Cut from"_s, scImageCropBigPos)},
        {offsetRow(tfCropBigXOffset, tfCropBigYOffset, {})},
        {colorRow(u"Frame"_s, cwNSColorWellObjBbImage, tfBigFramingRGBvalue)},
        {textRow(u"Frame width"_s, tfBigFramingThickness, u"px"_s)},
        {formatRow(pbBIGImageFormat, pbBIGJPGCompression)},
    };
}

Layout GalleryPanel::boxRows()
{
    return {
        {Heading{u"Box of the large picture"_s}},
        {Row{.fields = {{.control = &cbCaptionStatus}}}},
        {colorRow(
            u"Ground"_s, ascNSColorWellObjRDLightboxBgColor, tfNSColorWellObjRDLightboxBgColor
        )},
        {oneRow(u"Opacity"_s, sliderLightboxRDBgColorOpacity)},
        {colorRow(u"Border"_s, cwBoxColor, tfHTMLLightBoxColor)},
        {pairRow(
            u"Width, radius"_s,
            tfBoxThickness,
            u"Width of the box's border"_s,
            tfBoxRadius,
            u"Radius of the box's corners"_s
        )},
        {colorRow(u"Shadow"_s, cwBoxShadowColor, tfHTMLLightBoxShadowColor)},
        {textRow(u"Shadow blur"_s, tfBoxShadowThickness, u"px"_s)},
        {pairRow(
            u"Shadow offset"_s,
            tfBoxShadowXOffset,
            u"Box shadow to the right"_s,
            tfBoxShadowYOffset,
            u"Box shadow down"_s
        )},
    };
}

} // namespace brenvaldo::panels
