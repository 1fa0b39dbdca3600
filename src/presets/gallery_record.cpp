// SPDX-License-Identifier: GPL-3.0-or-later
#include "gallery_record.h"

#include "gallery_dependents.h"

#include <platform/foundation/literals.h>
#include <platform/foundation/numbers.h>

namespace brenvaldo::presets {

namespace {

using Use = RecordField::Use;
using RecordFields = std::vector<RecordField>;

LoadEffect selectsIn(controls::IndexedControl& control)
{
    return [&control](const QString& text) { control.selectIndex(platform::intValue(text)); };
}

/// A box whose stored state comes back to the controls that depend on it, not to itself.
OtherForm dependentsOnlyForm(controls::CheckBox& box, LoadEffect effect)
{
    return {
        .stored = [&box] { return QString::number(box.state()); }, .restore = std::move(effect)};
}

OtherForm sliderForm(controls::Slider& slider)
{
    return {
        .stored = [&slider] { return QString::number(slider.doubleValue(), 'f', 6); },
        .restore = [&slider](const QString& text
                   ) { slider.setDoubleValue(static_cast<double>(platform::floatValue(text))); }};
}

RecordFields pageFields(panels::GalleryPanel& gallery)
{
    return {
        {6, TextForm{&gallery.tfNumberOfRows}},
        {7, TextForm{&gallery.tfNumberOfColumns}},
        {8, TextForm{&gallery.tfHTMLbackgroundColor}},
        {9, TextForm{&gallery.tfHTMLbackgroundColorCell}},
        {10, StateForm{&gallery.cbMagnifyHooverEffectState}},
        {11, TextForm{&gallery.tfHTMLfileName}},
        {12, IndexForm{&gallery.pubPhotoGalleryModel}},
        {13, TextForm{&gallery.tfGridWidth}},
        {14, StateForm{&gallery.btShowPageTitle}, enablesUnlessZero({&gallery.tfPageTitle})},
        {15, TextForm{&gallery.tfPageTitle}},
        {16, StateForm{&gallery.btShowTitle}, enablesUnlessZero(headingDependents(gallery))},
        {17, TextForm{&gallery.tvTitle}},
        {18, TextForm{&gallery.tfHTMLTitleColor}},
        {19, IndexForm{&gallery.pbTitleFontWeight}, selectsIn(gallery.pbTitleFontSize)},
        {20, IndexForm{&gallery.scTitleTxtAlign}},
        {.position = 21, .form = IndexForm{&gallery.pbTitleFontSize}, .use = Use::OnlyWritten},
        {22, IndexForm{&gallery.pbFontFamily}}};
}

RecordFields textFields(panels::GalleryPanel& gallery)
{
    return {
        {23, StateForm{&gallery.btShowFileName}, enablesUnlessZero(fileNameDependents(gallery))},
        {24, IndexForm{&gallery.pbFileNameFontWeight}},
        {25, IndexForm{&gallery.pbFileNameFontSize}},
        {26, IndexForm{&gallery.scFilenameTxtAlign}},
        {27, TextForm{&gallery.tfHTMLPhotoNameColor}},
        {28,
         dependentsOnlyForm(
             gallery.cbPgShowMetaData, enablesUnlessZero(captionDependents(gallery))
         )},
        {29, IndexForm{&gallery.pubPgMetaData}},
        {30, TextForm{&gallery.tfPgMetaDataToShow}},
        {31, TextForm{&gallery.tfPgMetaDataValueSep}},
        {32, TextForm{&gallery.tfHTMLUserExifCommentColor}},
        {33, IndexForm{&gallery.scEXIFuserCommentTxtAlgin}},
        {34, IndexForm{&gallery.pbExifUserCommentFontSize}},
        {35, IndexForm{&gallery.pbExifUserCommentFontWeight}}};
}

RecordFields thumbnailFields(panels::GalleryPanel& gallery)
{
    return {
        {36, IndexForm{&gallery.pubPhotoRatio}},
        {37, IndexForm{&gallery.pubThumbAction}},
        {38, TextForm{&gallery.tfSmallCropWidth}},
        {39, TextForm{&gallery.tfSmallCropHeight}},
        {40, IndexForm{&gallery.scImageCropThumbPos}},
        {41, TextForm{&gallery.tfCropThumbXOffset}},
        {42, TextForm{&gallery.tfCropThumbYOffset}},
        {43, TextForm{&gallery.tfSmallFramingRGBvalue}},
        {44, TextForm{&gallery.tfSmallFramingThickness}},
        {45, IndexForm{&gallery.pbImageFormat}},
        {46, IndexForm{&gallery.pbJPGCompression}},
        {47, TextForm{&gallery.tfThumbnailColorValue}},
        {48, TextForm{&gallery.tfThumbnailBorderRadius}},
        {49, TextForm{&gallery.tfThumbnailBorderThickness}},
        {52, TextForm{&gallery.tfThumbnailShadowColorValue}},
        {53, TextForm{&gallery.tfThumbnailShadowThickness}},
        {54, TextForm{&gallery.tfThumbnailShadowXOffset}},
        {55, TextForm{&gallery.tfThumbnailShadowYOffset}}};
}

RecordFields largePictureFields(panels::GalleryPanel& gallery)
{
    return {
        {56, TextForm{&gallery.tfBigCropWidth}},
        {57, TextForm{&gallery.tfBigCropHeight}},
        {58, IndexForm{&gallery.scImageCropBigPos}},
        {59, TextForm{&gallery.tfCropBigXOffset}},
        {60, TextForm{&gallery.tfCropBigYOffset}},
        {63, IndexForm{&gallery.pbBIGImageFormat}},
        {64, IndexForm{&gallery.pbBIGJPGCompression}},
        {65, TextForm{&gallery.tfHTMLLightBoxColor}},
        {66, TextForm{&gallery.tfHTMLLightBoxShadowColor}},
        {67, TextForm{&gallery.tfBoxRadius}},
        {68, TextForm{&gallery.tfBoxThickness}},
        {69, TextForm{&gallery.tfBoxShadowThickness}},
        {70, TextForm{&gallery.tfBoxShadowXOffset}},
        {71, TextForm{&gallery.tfBoxShadowYOffset}},
        {72, TextForm{&gallery.tfNSColorWellObjRDLightboxBgColor}},
        {73, StateForm{&gallery.cbCaptionStatus}}};
}

RecordFields colorFields(panels::GalleryPanel& gallery)
{
    return {
        {74, GalleryColorForm{&gallery.myPresetNSColorWellObjBGCt}},
        {75, GalleryColorForm{&gallery.myPresetNSColorWellObjBGCc}},
        {76, GalleryColorForm{&gallery.myPresetNSColorWellObjTCt}},
        {77, GalleryColorForm{&gallery.myPresetNSColorWellObjPhotoNameC}},
        {78, GalleryColorForm{&gallery.myPresetNSColorWellObjUserExifCommentC}},
        {79, GalleryColorForm{&gallery.cwNSColorWellObjBsImage}},
        {80, GalleryColorForm{&gallery.cwThumbnailColor}},
        {81, GalleryColorForm{&gallery.cwThumbnailShadowColor}},
        {83, GalleryColorForm{&gallery.cwBoxColor}},
        {84, GalleryColorForm{&gallery.cwBoxShadowColor}},
        {85, GalleryColorForm{&gallery.ascNSColorWellObjRDLightboxBgColor}},
        {86, sliderForm(gallery.sliderLightboxRDBgColorOpacity)}};
}

} // namespace

PresetRecord galleryRecord(panels::Panels& panels)
{
    panels::GalleryPanel& gallery = panels.vwHtmlExport;
    RecordFields fields = {{3, FolderForm{&panels.vwMainDestination.tfImageDestinationFolder}}};
    for (const RecordFields& part :
         {pageFields(gallery),
          textFields(gallery),
          thumbnailFields(gallery),
          largePictureFields(gallery),
          colorFields(gallery)})
        fields.insert(fields.end(), part.begin(), part.end());
    return {
        .process = u"htmlExport"_s,
        .action = u"photoGallery"_s,
        .before = PresetRecord::Before::Nothing,
        .fields = std::move(fields)};
}

} // namespace brenvaldo::presets
