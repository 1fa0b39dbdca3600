// SPDX-License-Identifier: GPL-3.0-or-later
#include "window_controls.h"

namespace brenvaldo::panels {

WindowControls::WindowControls()
    : btnEditPhoto(u"btnEditPhoto"_qs, u"Edit photos"_qs, u"cGUIcontrols.hEditPhotoClicked"_qs)
    , btnFileManagement(
          u"btnFileManagement"_qs, u"Manage files"_qs, u"cGUIcontrols.hFileManagementClicked"_qs
      )
    , btnExportHtml(u"btnExportHtml"_qs, u"Web gallery"_qs, u"cGUIcontrols.hExportHTMLClicked"_qs)
    , btnPresets(u"btnPresets"_qs, u"Presets\u2026"_qs, u"cPresetManager.hLoadPreset"_qs)
    , btnPresetsHelp(u"btnPresetsHelp"_qs, u"?"_qs, QString())
    , btnProcess(u"btnProcess"_qs, u"Process"_qs, u"cGUIcontrols.hLoadImages"_qs)
    , pubEditPhoto(
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
           u"Crop"_qs}
      )
    , pubFileManagementSelect(
          u"pubFileManagementSelect"_qs,
          {u"Sort photos & files"_qs,
           u"EXIF and IPTC"_qs,
           u"Rename files"_qs,
           u"Convert file type"_qs,
           u"QR and bar codes"_qs}
      )
    , dvVCUiMainPropertySelect(u"dvVCUiMainPropertySelect"_qs)
    , dvVCUiMainPropertyView(u"dvVCUiMainPropertyView"_qs)
    , dvVCUiPreviewPropertyView(u"dvVCUiPreviewPropertyView"_qs)
    , dvVCUiApplyOnPropertyView(u"dvVCUiApplyOnPropertyView"_qs)
    , dvVCUiFileTypePropertyView(u"dvVCUiFileTypePropertyView"_qs)
    , dvVCUiMainDestinationPropertyView(u"dvVCUiMainDestinationPropertyView"_qs)
    , myProgressBar(u"myProgressBar"_qs)
    , tfImageCount(u"tfImageCount"_qs, u"0"_qs)
    , cbPhotoToProcess(u"cbPhotoToProcess"_qs, u"All photos"_qs, 1)
    , myTemplatePreview(u"myTemplatePreview"_qs)
    , myTemplateOverlayPreview(u"myTemplateOverlayPreview"_qs)
    , wwAlertWindow(u"wwAlertWindow"_qs)
    , tfHTMLAlertTitle(u"tfHTMLAlertTitle"_qs)
    , tfHTMLAlertInfo(u"tfHTMLAlertInfo"_qs)
    , tfOriginalPictureStrRef(u"tfOriginalPictureStrRef"_qs)
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
