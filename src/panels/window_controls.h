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

    controls::Button btnEditPhoto;
    controls::Button btnFileManagement;
    controls::Button btnExportHtml;
    controls::Button btnPresets;
    controls::Button btnPresetsHelp;
    controls::Button btnProcess;

    controls::PopUpButton pubEditPhoto;
    controls::PopUpButton pubFileManagementSelect;

    controls::Holder dvVCUiMainPropertySelect;
    controls::Holder dvVCUiMainPropertyView;
    controls::Holder dvVCUiPreviewPropertyView;
    controls::Holder dvVCUiApplyOnPropertyView;
    controls::Holder dvVCUiFileTypePropertyView;
    controls::Holder dvVCUiMainDestinationPropertyView;

    controls::ProgressIndicator myProgressBar;
    controls::TextField tfImageCount;
    controls::CheckBox cbPhotoToProcess;
    controls::ImageView myTemplatePreview;
    controls::ImageView myTemplateOverlayPreview;

    controls::Sheet wwAlertWindow;
    controls::TextField tfHTMLAlertTitle;
    controls::TextField tfHTMLAlertInfo;

    controls::TextField tfOriginalPictureStrRef; ///< path of the photo that is printed

    [[nodiscard]] QList<controls::Control*> all();
};

} // namespace brenvaldo::panels
