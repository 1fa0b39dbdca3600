// SPDX-License-Identifier: GPL-3.0-or-later
#include "gallery_dependents.h"

namespace brenvaldo::presets {

ControlList headingDependents(panels::GalleryPanel& gallery)
{
    return {
        &gallery.tfHTMLTitleColor,
        &gallery.myPresetNSColorWellObjTCt,
        &gallery.pbTitleFontWeight,
        &gallery.scTitleTxtAlign,
        &gallery.pbTitleFontSize,
        &gallery.pbFontFamily};
}

ControlList fileNameDependents(panels::GalleryPanel& gallery)
{
    return {
        &gallery.tfHTMLPhotoNameColor,
        &gallery.myPresetNSColorWellObjPhotoNameC,
        &gallery.pbFileNameFontWeight,
        &gallery.pbFileNameFontSize,
        &gallery.scFilenameTxtAlign};
}

ControlList captionDependents(panels::GalleryPanel& gallery)
{
    return {
        &gallery.pubPgMetaData,
        &gallery.tfHTMLPhotoNameColor,
        &gallery.myPresetNSColorWellObjPhotoNameC,
        &gallery.tfPgMetaDataValueSep,
        &gallery.tfHTMLUserExifCommentColor,
        &gallery.scEXIFuserCommentTxtAlgin,
        &gallery.pbExifUserCommentFontSize,
        &gallery.pbExifUserCommentFontWeight,
        &gallery.myPresetNSColorWellObjUserExifCommentC};
}

} // namespace brenvaldo::presets
