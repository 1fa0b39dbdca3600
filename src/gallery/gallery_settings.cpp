// SPDX-License-Identifier: GPL-3.0-or-later
#include "gallery_settings.h"

#include "page_rules.h"
#include "web_fonts.h"

#include <platform/foundation/literals.h>
#include <platform/foundation/numbers.h>

#include <algorithm>

namespace brenvaldo::gallery {

namespace {

using imaging::DVImageHandling;
using panels::GalleryPanel;

constexpr int gridModel = 2;

int number(const controls::TextField& field) { return platform::intValue(field.stringValue()); }

QString hashed(const controls::TextField& field) { return u'#' + field.stringValue(); }

QString baseNameOf(const QString& name)
{
    return name.isEmpty() || name == u" " ? u"myIndex"_s : name;
}

TextLook titleLook(const GalleryPanel& panel)
{
    return {
        .size = panel.pbTitleFontSize.titleOfSelectedItem(),
        .weight = fontWeight(panel.pbTitleFontWeight.titleOfSelectedItem()),
        .color = hashed(panel.tfHTMLTitleColor),
        .alignment = alignmentWord(panel.scTitleTxtAlign.selectedSegment())};
}

TextLook fileNameLook(const GalleryPanel& panel)
{
    return {
        .size = panel.pbFileNameFontSize.titleOfSelectedItem(),
        .weight = fileNameWeight(panel.pbFileNameFontWeight.titleOfSelectedItem()),
        .color = hashed(panel.tfHTMLPhotoNameColor),
        .alignment = alignmentWord(panel.scFilenameTxtAlign.selectedSegment())};
}

TextLook captionLook(const GalleryPanel& panel)
{
    return {
        .size = panel.pbExifUserCommentFontSize.titleOfSelectedItem(),
        .weight = fontWeight(panel.pbExifUserCommentFontWeight.titleOfSelectedItem()),
        .color = hashed(panel.tfHTMLUserExifCommentColor),
        .alignment = alignmentWord(panel.scEXIFuserCommentTxtAlgin.selectedSegment())};
}

BorderLook thumbnailBorder(const GalleryPanel& panel)
{
    return {
        .thickness = panel.tfThumbnailBorderThickness.stringValue(),
        .color = panel.tfThumbnailColorValue.stringValue(),
        .radius = panel.tfThumbnailBorderRadius.stringValue()};
}

ShadowLook thumbnailShadow(const GalleryPanel& panel)
{
    return {
        .x = panel.tfThumbnailShadowXOffset.stringValue(),
        .y = panel.tfThumbnailShadowYOffset.stringValue(),
        .blur = panel.tfThumbnailShadowThickness.stringValue(),
        .color = panel.tfThumbnailShadowColorValue.stringValue()};
}

LightboxLook lightboxLook(const GalleryPanel& panel)
{
    return {
        .border
        = {.thickness = panel.tfBoxThickness.stringValue(),
           .color = panel.tfHTMLLightBoxColor.stringValue(),
           .radius = panel.tfBoxRadius.stringValue()},
        .shadow
        = {.x = panel.tfBoxShadowXOffset.stringValue(),
           .y = panel.tfBoxShadowYOffset.stringValue(),
           .blur = panel.tfBoxShadowThickness.stringValue(),
           .color = panel.tfHTMLLightBoxShadowColor.stringValue()},
        .background = panel.ascNSColorWellObjRDLightboxBgColor.color().withAlpha(1),
        .opacity = platform::numberText(panel.sliderLightboxRDBgColorOpacity.doubleValue() / 100)};
}

StylesheetValues stylesheetOf(const GalleryPanel& panel, int columns)
{
    return {
        .fontFamily = panel.pbFontFamily.titleOfSelectedItem(),
        .pageBackground = hashed(panel.tfHTMLbackgroundColor),
        .cellBackground = hashed(panel.tfHTMLbackgroundColorCell),
        .title = titleLook(panel),
        .fileName = fileNameLook(panel),
        .caption = captionLook(panel),
        .thumbnailBorder = thumbnailBorder(panel),
        .thumbnailShadow = thumbnailShadow(panel),
        .lightbox = lightboxLook(panel),
        .columnWidths = columnWidths(columns),
        .columns = columns,
        .cropHeight = number(panel.tfSmallCropHeight),
        .magnifies = panel.cbMagnifyHooverEffectState.isOn(),
        .limitsHeights = panel.pubThumbAction.indexOfSelectedItem() == 1};
}

PageValues pageOf(const GalleryPanel& panel)
{
    const bool isGrid = panel.pubPhotoGalleryModel.indexOfSelectedItem() == gridModel;
    return {
        .model = isGrid ? PageModel::Grid : PageModel::Table,
        .baseName = baseNameOf(panel.tfHTMLfileName.stringValue()),
        .pageTitle = panel.tfPageTitle.stringValue(),
        .width = panel.tfGridWidth.stringValue(),
        .fontFamily = panel.pbFontFamily.titleOfSelectedItem(),
        .heading = panel.tvTitle.stringValue(),
        .showsHeading = panel.btShowTitle.isOn(),
        .showsFileNames = panel.btShowFileName.isOn(),
        .showsMetadata = panel.cbPgShowMetaData.isOn(),
        .showsCaptionsInLightbox = panel.cbCaptionStatus.isOn(),
        .thumbnailFormat = panel.pbImageFormat.titleOfSelectedItem(),
        .largeFormat = panel.pbBIGImageFormat.titleOfSelectedItem()};
}

DVImageHandling::GalleryCrop
cropOf(const GalleryPanel& panel, platform::graphics::PixelSize size, int anchor)
{
    const auto offset = [](const controls::TextField& x, const controls::TextField& y) {
        return imaging::CropOffset{number(x), number(y)};
    };
    return {
        .size = size,
        .anchor = anchor,
        .thumbnailOffset = offset(panel.tfCropThumbXOffset, panel.tfCropThumbYOffset),
        .bigOffset = offset(panel.tfCropBigXOffset, panel.tfCropBigYOffset)};
}

bool hasBothSides(platform::graphics::PixelSize size)
{
    return size.width != 0 && size.height != 0;
}

platform::graphics::PixelSize
sizeOf(const controls::TextField& width, const controls::TextField& height)
{
    return {number(width), number(height)};
}

void resizeThumbnail(
    imaging::GalleryPictureSettings& thumbnail,
    const GalleryPanel& panel,
    platform::graphics::PixelSize size
)
{
    if (panel.pubThumbAction.indexOfSelectedItem() != 0) {
        thumbnail.resizes = {{size.width, 6}, {size.height, 7}};
        return;
    }
    thumbnail.resizes = {{std::max(size.width, size.height), 4}};
    if (!hasBothSides(size))
        return;
    thumbnail.crop = cropOf(panel, size, panel.scImageCropThumbPos.selectedSegment());
    thumbnail.crop->kind = u"myCropThumb"_s;
}

imaging::GalleryPictureSettings thumbnailOf(const GalleryPanel& panel)
{
    imaging::GalleryPictureSettings thumbnail{
        .resizes = {},
        .frameColor = panel.cwNSColorWellObjBsImage.color(),
        .frameThickness = number(panel.tfSmallFramingThickness),
        .folder = u"DVimages_s/"_s,
        .format = panel.pbImageFormat.titleOfSelectedItem(),
        .compressionLevel = panel.pbJPGCompression.titleOfSelectedItem()};
    resizeThumbnail(thumbnail, panel, sizeOf(panel.tfSmallCropWidth, panel.tfSmallCropHeight));
    return thumbnail;
}

imaging::GalleryPictureSettings largePictureOf(const GalleryPanel& panel)
{
    const auto size = sizeOf(panel.tfBigCropWidth, panel.tfBigCropHeight);
    imaging::GalleryPictureSettings large{
        .resizes = {{std::max(size.width, size.height), 5}},
        .frameColor = panel.cwNSColorWellObjBbImage.color(),
        .frameThickness = number(panel.tfBigFramingThickness),
        .folder = u"DVimages_b/"_s,
        .format = panel.pbBIGImageFormat.titleOfSelectedItem(),
        .compressionLevel = panel.pbBIGJPGCompression.titleOfSelectedItem()};
    if (hasBothSides(size)) {
        large.crop = cropOf(panel, size, panel.scImageCropBigPos.selectedSegment());
        large.crop->kind = u"myCropBig"_s;
    }
    return large;
}

} // namespace

GallerySettings readSettings(const GalleryPanel& panel)
{
    const int columns = columnCount(number(panel.tfNumberOfColumns));
    return {
        .stylesheet = stylesheetOf(panel, columns),
        .page = pageOf(panel),
        .caption
        = {.parts = panel.tfPgMetaDataToShow.stringValue(),
           .separator = panel.tfPgMetaDataValueSep.stringValue()},
        .rows = std::max(number(panel.tfNumberOfRows), 1),
        .columns = columns,
        .thumbnailSize = std::max(number(panel.tfSmallCropWidth), number(panel.tfSmallCropHeight)),
        .largeSize = std::max(number(panel.tfBigCropWidth), number(panel.tfBigCropHeight)),
        .thumbnail = thumbnailOf(panel),
        .large = largePictureOf(panel)};
}

} // namespace brenvaldo::gallery
