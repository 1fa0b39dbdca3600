// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <controls/choice_controls.h>
#include <controls/containers.h>
#include <controls/image_view.h>
#include <controls/range_controls.h>
#include <controls/text_controls.h>
#include <platform/foundation/literals.h>

namespace brenvaldo::panels {

/// The controls of the main window that belong to no function: sections, holders, list tools,
/// preview, bar, alert.
struct WindowControls
{
    WindowControls();

    controls::Button btnEditPhoto{
        u"btnEditPhoto"_s, u"Edit photos"_s, u"cGUIcontrols.hEditPhotoClicked"_s};
    controls::Button btnFileManagement{
        u"btnFileManagement"_s, u"Manage files"_s, u"cGUIcontrols.hFileManagementClicked"_s};
    controls::Button btnExportHtml{
        u"btnExportHtml"_s, u"Web gallery"_s, u"cGUIcontrols.hExportHTMLClicked"_s};
    controls::Button btnPresets{
        u"btnPresets"_s, u"Presets\u2026"_s, u"cPresetManager.hLoadPreset"_s};
    controls::Button btnPresetsHelp{u"btnPresetsHelp"_s, u"?"_s, QString()};
    controls::Button btnProcess{u"btnProcess"_s, u"Process"_s, u"cGUIcontrols.hLoadImages"_s};

    controls::PopUpButton pubEditPhoto{
        u"pubEditPhoto"_s,
        {u"Watermark"_s,
         u"Tint"_s,
         u"Frame"_s,
         u"Rounded corners"_s,
         u"Colour profile"_s,
         u"Cut out faces"_s,
         u"Rotate"_s,
         u"Filters"_s,
         u"Resize"_s,
         u"Crop"_s}};
    controls::PopUpButton pubFileManagementSelect{
        u"pubFileManagementSelect"_s,
        {u"Sort photos & files"_s,
         u"EXIF and IPTC"_s,
         u"Rename files"_s,
         u"Convert file type"_s,
         u"QR and bar codes"_s}};

    controls::Holder dvVCUiMainPropertySelect{u"dvVCUiMainPropertySelect"_s};
    controls::Holder dvVCUiMainPropertyView{u"dvVCUiMainPropertyView"_s};
    controls::Holder dvVCUiPreviewPropertyView{u"dvVCUiPreviewPropertyView"_s};
    controls::Holder dvVCUiApplyOnPropertyView{u"dvVCUiApplyOnPropertyView"_s};
    controls::Holder dvVCUiFileTypePropertyView{u"dvVCUiFileTypePropertyView"_s};
    controls::Holder dvVCUiMainDestinationPropertyView{u"dvVCUiMainDestinationPropertyView"_s};

    controls::ProgressIndicator myProgressBar{u"myProgressBar"_s};
    controls::TextField tfImageCount{u"tfImageCount"_s, u"0"_s};
    controls::CheckBox cbPhotoToProcess{u"cbPhotoToProcess"_s, u"All photos"_s, 1};
    controls::ImageView myTemplatePreview{u"myTemplatePreview"_s};
    controls::ImageView myTemplateOverlayPreview{u"myTemplateOverlayPreview"_s};

    controls::Sheet wwAlertWindow{u"wwAlertWindow"_s};
    controls::TextField tfHTMLAlertTitle{u"tfHTMLAlertTitle"_s};
    controls::TextField tfHTMLAlertInfo{u"tfHTMLAlertInfo"_s};

    /// Path of the photo that is printed.
    controls::TextField tfOriginalPictureStrRef{u"tfOriginalPictureStrRef"_s};

    [[nodiscard]] QList<controls::Control*> all();
};

} // namespace brenvaldo::panels
