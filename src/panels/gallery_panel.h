// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "common_titles.h"
#include "gallery_titles.h"
#include "layout.h"
#include "pattern_image_controls.h"

#include <controls/color_well.h>
#include <controls/range_controls.h>
#include <controls/text_controls.h>
#include <platform/foundation/literals.h>

namespace brenvaldo::panels {

/// Web galleries: pages, texts, thumbnails, large pictures and the box that shows them.
struct GalleryPanel : PanelView, PatternImageControls
{
    GalleryPanel();

    // The template and the pages.
    controls::PopUpButton pubPhotoGalleryModel{
        u"pubPhotoGalleryModel"_s,
        {u"Dark table"_s, u"Light table"_s, u"Light grid"_s, u"Table of squares"_s}};
    controls::TextField tfHTMLfileName{u"tfHTMLfileName"_s};
    controls::CheckBox btShowPageTitle{u"btShowPageTitle"_s, u"Title of the browser's window"_s, 1};
    controls::TextField tfPageTitle{u"tfPageTitle"_s};
    controls::TextField tfGridWidth{u"tfGridWidth"_s, u"80"_s};
    controls::TextField tfNumberOfRows{u"tfNumberOfRows"_s, u"6"_s};
    controls::TextField tfNumberOfColumns{u"tfNumberOfColumns"_s, u"4"_s};
    controls::TextField tfHTMLbackgroundColor{u"tfHTMLbackgroundColor"_s, u"092B4F"_s};
    controls::ColorWell myPresetNSColorWellObjBGCt{u"myPresetNSColorWellObjBGCt"_s};
    controls::TextField tfHTMLbackgroundColorCell{u"tfHTMLbackgroundColorCell"_s, u"000000"_s};
    controls::ColorWell myPresetNSColorWellObjBGCc{u"myPresetNSColorWellObjBGCc"_s};

    // The heading.
    controls::CheckBox btShowTitle{u"btShowTitle"_s, u"Heading above the photos"_s, 1};
    controls::TextView tvTitle{u"tvTitle"_s};
    controls::PopUpButton pbFontFamily{u"pbFontFamily"_s, webFontTitles(), 7};
    controls::TextField tfHTMLTitleColor{u"tfHTMLTitleColor"_s, u"FFFFFF"_s};
    controls::ColorWell myPresetNSColorWellObjTCt{u"myPresetNSColorWellObjTCt"_s};
    controls::PopUpButton pbTitleFontWeight{u"pbTitleFontWeight"_s, fontWeightTitles(), 3};
    controls::PopUpButton pbTitleFontSize{u"pbTitleFontSize"_s, fontSizeTitles(), 6};
    controls::SegmentedControl scTitleTxtAlign{u"scTitleTxtAlign"_s, alignmentTitles()};

    // File names below the thumbnails.
    controls::CheckBox btShowFileName{u"btShowFileName"_s, u"File name below each photo"_s, 1};
    controls::TextField tfHTMLPhotoNameColor{u"tfHTMLPhotoNameColor"_s, u"FFFFFF"_s};
    controls::ColorWell myPresetNSColorWellObjPhotoNameC{u"myPresetNSColorWellObjPhotoNameC"_s};
    controls::PopUpButton pbFileNameFontWeight{u"pbFileNameFontWeight"_s, fontWeightTitles(), 3};
    controls::PopUpButton pbFileNameFontSize{u"pbFileNameFontSize"_s, fontSizeTitles(), 2};
    controls::SegmentedControl scFilenameTxtAlign{u"scFilenameTxtAlign"_s, alignmentTitles()};

    // Captions out of the photos' metadata.
    controls::CheckBox cbPgShowMetaData{u"cbPgShowMetaData"_s, u"Caption below each photo"_s, 1};
    controls::PopUpButton pubPgMetaData{u"pubPgMetaData"_s, galleryMetadataTitles()};
    controls::Button btnPgAddMetaData{
        u"btnPgAddMetaData"_s, u"Add"_s, u"cResponsiveDesign.hPgAddMetaDataValue"_s};
    controls::Button btnPgClearMetaData{
        u"btnPgClearMetaData"_s, u"Clear"_s, u"cResponsiveDesign.hPgClearMetaDataValue"_s};
    controls::TextField tfPgMetaDataToShow{u"tfPgMetaDataToShow"_s, u"EXIF User Comment"_s};
    controls::TextField tfPgMetaDataValueSep{u"tfPgMetaDataValueSep"_s, u"; "_s};
    controls::TextField tfHTMLUserExifCommentColor{u"tfHTMLUserExifCommentColor"_s, u"3661D0"_s};
    controls::ColorWell myPresetNSColorWellObjUserExifCommentC{
        u"myPresetNSColorWellObjUserExifCommentC"_s};
    controls::PopUpButton pbExifUserCommentFontWeight{
        u"pbExifUserCommentFontWeight"_s, fontWeightTitles(), 1};
    controls::PopUpButton pbExifUserCommentFontSize{
        u"pbExifUserCommentFontSize"_s, fontSizeTitles(), 3};
    controls::SegmentedControl scEXIFuserCommentTxtAlgin{
        u"scEXIFuserCommentTxtAlgin"_s, alignmentTitles()};

    // Thumbnails.
    controls::PopUpButton pubPhotoRatio{
        u"pubPhotoRatio"_s,
        {u"As entered"_s,
         u"1 : 1"_s,
         u"3 : 2"_s,
         u"2 : 3"_s,
         u"3 : 1"_s,
         u"4 : 3"_s,
         u"3 : 4"_s,
         u"12 : 9"_s,
         u"16 : 9"_s},
        2};
    controls::PopUpButton pubThumbAction{
        u"pubThumbAction"_s, {u"Cut to this size"_s, u"Fit into this size"_s}};
    controls::TextField tfSmallCropWidth{u"tfSmallCropWidth"_s, u"450"_s};
    controls::TextField tfSmallCropHeight{u"tfSmallCropHeight"_s, u"300"_s};
    controls::SegmentedControl scImageCropThumbPos{
        u"scImageCropThumbPos"_s,
        positionGridTitles(),
        4,
        controls::SegmentedControl::Look::PositionGrid};
    controls::TextField tfCropThumbXOffset{u"tfCropThumbXOffset"_s, u"0"_s};
    controls::TextField tfCropThumbYOffset{u"tfCropThumbYOffset"_s, u"0"_s};
    controls::TextField tfSmallFramingRGBvalue{u"tfSmallFramingRGBvalue"_s, u"000000"_s};
    controls::ColorWell cwNSColorWellObjBsImage{u"cwNSColorWellObjBsImage"_s};
    controls::TextField tfSmallFramingThickness{u"tfSmallFramingThickness"_s, u"10"_s};
    controls::PopUpButton pbImageFormat{u"pbImageFormat"_s, pictureFormatTitles()};
    controls::PopUpButton pbJPGCompression{u"pbJPGCompression"_s, compressionTitles(), 7};
    controls::CheckBox cbMagnifyHooverEffectState{
        u"cbMagnifyHooverEffectState"_s, u"Grow under the pointer"_s, 1};
    controls::TextField tfThumbnailColorValue{u"tfThumbnailColorValue"_s, u"000000"_s};
    controls::ColorWell cwThumbnailColor{u"cwThumbnailColor"_s};
    controls::TextField tfThumbnailBorderThickness{u"tfThumbnailBorderThickness"_s, u"0"_s};
    controls::TextField tfThumbnailBorderRadius{u"tfThumbnailBorderRadius"_s, u"0"_s};
    controls::TextField tfThumbnailShadowColorValue{u"tfThumbnailShadowColorValue"_s, u"FFFFFF"_s};
    controls::ColorWell cwThumbnailShadowColor{u"cwThumbnailShadowColor"_s};
    controls::TextField tfThumbnailShadowThickness{u"tfThumbnailShadowThickness"_s, u"0"_s};
    controls::TextField tfThumbnailShadowXOffset{u"tfThumbnailShadowXOffset"_s, u"0"_s};
    controls::TextField tfThumbnailShadowYOffset{u"tfThumbnailShadowYOffset"_s, u"0"_s};

    // Large pictures.
    controls::TextField tfBigCropWidth{u"tfBigCropWidth"_s, u"1024"_s};
    controls::TextField tfBigCropHeight{u"tfBigCropHeight"_s, u"1024"_s};
    controls::SegmentedControl scImageCropBigPos{
        u"scImageCropBigPos"_s,
        positionGridTitles(),
        4,
        controls::SegmentedControl::Look::PositionGrid};
    controls::TextField tfCropBigXOffset{u"tfCropBigXOffset"_s, u"0"_s};
    controls::TextField tfCropBigYOffset{u"tfCropBigYOffset"_s, u"0"_s};
    controls::TextField tfBigFramingRGBvalue{u"tfBigFramingRGBvalue"_s, u"FFFFFF"_s};
    controls::ColorWell cwNSColorWellObjBbImage{u"cwNSColorWellObjBbImage"_s};
    controls::TextField tfBigFramingThickness{u"tfBigFramingThickness"_s, u"0"_s};
    controls::PopUpButton pbBIGImageFormat{u"pbBIGImageFormat"_s, pictureFormatTitles()};
    controls::PopUpButton pbBIGJPGCompression{u"pbBIGJPGCompression"_s, compressionTitles(), 7};

    // The box in which a large picture shows.
    controls::CheckBox cbCaptionStatus{u"cbCaptionStatus"_s, u"Show the photo's name in the box"_s};
    controls::TextField tfNSColorWellObjRDLightboxBgColor{
        u"tfNSColorWellObjRDLightboxBgColor"_s, u"000000"_s};
    controls::ColorWell ascNSColorWellObjRDLightboxBgColor{u"ascNSColorWellObjRDLightboxBgColor"_s};
    controls::Slider sliderLightboxRDBgColorOpacity{
        u"sliderLightboxRDBgColorOpacity"_s, 0, 100, 50};
    controls::TextField tfHTMLLightBoxColor{u"tfHTMLLightBoxColor"_s, u"FFFFFF"_s};
    controls::ColorWell cwBoxColor{u"cwBoxColor"_s};
    controls::TextField tfBoxThickness{u"tfBoxThickness"_s, u"5"_s};
    controls::TextField tfBoxRadius{u"tfBoxRadius"_s, u"1"_s};
    controls::TextField tfHTMLLightBoxShadowColor{u"tfHTMLLightBoxShadowColor"_s, u"000000"_s};
    controls::ColorWell cwBoxShadowColor{u"cwBoxShadowColor"_s};
    controls::TextField tfBoxShadowThickness{u"tfBoxShadowThickness"_s, u"20"_s};
    controls::TextField tfBoxShadowXOffset{u"tfBoxShadowXOffset"_s, u"0"_s};
    controls::TextField tfBoxShadowYOffset{u"tfBoxShadowYOffset"_s, u"0"_s};

private:
    void giveAliases();
    void giveActions();
    void pairColors();
    [[nodiscard]] Layout pageRows();
    [[nodiscard]] Layout headingRows();
    [[nodiscard]] Layout fileNameRows();
    [[nodiscard]] Layout captionRows();
    [[nodiscard]] Layout thumbnailRows();
    [[nodiscard]] Layout thumbnailLookRows();
    [[nodiscard]] Layout largePictureRows();
    [[nodiscard]] Layout boxRows();
};

} // namespace brenvaldo::panels
