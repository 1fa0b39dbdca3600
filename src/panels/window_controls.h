// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <controls/choice_controls.h>
#include <controls/containers.h>
#include <controls/image_view.h>
#include <controls/range_controls.h>
#include <controls/text_controls.h>

namespace brenvaldo::panels {

/// The controls of the main window that belong to no function: sections, holders, list tools,
/// preview, bar, alert.
struct WindowControls
{
    WindowControls();

    controls::Button btnEditPhoto{
        u"btnEditPhoto"_qs, u"Edit photos"_qs, u"cGUIcontrols.hEditPhotoClicked"_qs};
    controls::Button btnFileManagement{
        u"btnFileManagement"_qs, u"Manage files"_qs, u"cGUIcontrols.hFileManagementClicked"_qs};
    controls::Button btnExportHtml{
        u"btnExportHtml"_qs, u"Web gallery"_qs, u"cGUIcontrols.hExportHTMLClicked"_qs};
    controls::Button btnPresets{
        u"btnPresets"_qs, u"Presets\u2026"_qs, u"cPresetManager.hLoadPreset"_qs};
    controls::Button btnPresetsHelp{u"btnPresetsHelp"_qs, u"?"_qs, QString()};
    controls::Button btnProcess{u"btnProcess"_qs, u"Process"_qs, u"cGUIcontrols.hLoadImages"_qs};

    controls::PopUpButton pubEditPhoto{
        u"pubEditPhoto"_qs,
        {u"Watermark"_qs,
         u"Tint"_qs,
         u"Frame"_qs,
         u"Rounded corners"_qs,
         u"Colour profile"_qs,
         u"Cut out faces"_qs,
         u"Rotate"_qs,
         u"Filters"_qs,
         u"Resize"_qs,
         u"Crop"_qs}};
    controls::PopUpButton pubFileManagementSelect{
        u"pubFileManagementSelect"_qs,
        {u"Sort photos & files"_qs,
         u"EXIF and IPTC"_qs,
         u"Rename files"_qs,
         u"Convert file type"_qs,
         u"QR and bar codes"_qs}};

    controls::Holder dvVCUiMainPropertySelect{u"dvVCUiMainPropertySelect"_qs};
    controls::Holder dvVCUiMainPropertyView{u"dvVCUiMainPropertyView"_qs};
    controls::Holder dvVCUiPreviewPropertyView{u"dvVCUiPreviewPropertyView"_qs};
    controls::Holder dvVCUiApplyOnPropertyView{u"dvVCUiApplyOnPropertyView"_qs};
    controls::Holder dvVCUiFileTypePropertyView{u"dvVCUiFileTypePropertyView"_qs};
    controls::Holder dvVCUiMainDestinationPropertyView{u"dvVCUiMainDestinationPropertyView"_qs};

    controls::ProgressIndicator myProgressBar{u"myProgressBar"_qs};
    controls::TextField tfImageCount{u"tfImageCount"_qs, u"0"_qs};
    controls::CheckBox cbPhotoToProcess{u"cbPhotoToProcess"_qs, u"All photos"_qs, 1};
    controls::ImageView myTemplatePreview{u"myTemplatePreview"_qs};
    controls::ImageView myTemplateOverlayPreview{u"myTemplateOverlayPreview"_qs};

    controls::Sheet wwAlertWindow{u"wwAlertWindow"_qs};
    controls::TextField tfHTMLAlertTitle{u"tfHTMLAlertTitle"_qs};
    controls::TextField tfHTMLAlertInfo{u"tfHTMLAlertInfo"_qs};

    /// Path of the photo that is printed.
    controls::TextField tfOriginalPictureStrRef{u"tfOriginalPictureStrRef"_qs};

    [[nodiscard]] QList<controls::Control*> all();
};

} // namespace brenvaldo::panels
