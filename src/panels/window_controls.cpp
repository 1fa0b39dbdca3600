// SPDX-License-Identifier: GPL-3.0-or-later
#include "window_controls.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::panels {

WindowControls::WindowControls()
{
    pubEditPhoto.addAction(u"cGUIcontrols.hChooseMainEditFunction"_s);
    pubFileManagementSelect.addAction(u"cGUIcontrols.hChooseMainFileManagementFunction"_s);
    wwAlertWindow.addAlias(u"jjrAlertWindowBatchSort"_s);
    tfHTMLAlertTitle.addAlias(u"tfAlertTitle"_s);
    tfHTMLAlertTitle.addAlias(u"tfAlertWwTitle"_s);
    tfHTMLAlertInfo.addAlias(u"tfAlertDescription"_s);
    tfHTMLAlertInfo.addAlias(u"tfAlertWwInfo"_s);
    cbPhotoToProcess.addAction(u"cCollectionViewController.hProcessAllPhotoFlag"_s);
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
