// SPDX-License-Identifier: GPL-3.0-or-later
#include "window_controls.h"

namespace brenvaldo::panels {

WindowControls::WindowControls()
{
    pubEditPhoto.addAction(u"cGUIcontrols.hChooseMainEditFunction"_qs);
    pubFileManagementSelect.addAction(u"cGUIcontrols.hChooseMainFileManagementFunction"_qs);
    tfHTMLAlertTitle.addAlias(u"tfAlertTitle"_qs);
    tfHTMLAlertInfo.addAlias(u"tfAlertDescription"_qs);
    cbPhotoToProcess.addAction(u"cCollectionViewController.hProcessAllPhotoFlag"_qs);
}

QList<controls::Control*> WindowControls::all()
{
    return {
        &btnEditPhoto,
        &btnFileManagement,
        &btnExportHtml,
        &btnPresets,
        &btnPresetsHelp,
        &btnProcess,
        &pubEditPhoto,
        &pubFileManagementSelect,
        &dvVCUiMainPropertySelect,
        &dvVCUiMainPropertyView,
        &dvVCUiPreviewPropertyView,
        &dvVCUiApplyOnPropertyView,
        &dvVCUiFileTypePropertyView,
        &dvVCUiMainDestinationPropertyView,
        &myProgressBar,
        &tfImageCount,
        &cbPhotoToProcess,
        &myTemplatePreview,
        &myTemplateOverlayPreview,
        &wwAlertWindow,
        &tfHTMLAlertTitle,
        &tfHTMLAlertInfo,
        &tfOriginalPictureStrRef,
    };
}

} // namespace brenvaldo::panels
