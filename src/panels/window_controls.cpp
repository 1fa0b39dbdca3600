// SPDX-License-Identifier: GPL-3.0-or-later
#include "window_controls.h"

namespace brenvaldo::panels {

WindowControls::WindowControls()
    : btnEditPhoto(
        QStringLiteral("btnEditPhoto"),
        QStringLiteral("Edit photos"),
        QStringLiteral("cGUIcontrols.hEditPhotoClicked")
    )
    , btnFileManagement(
          QStringLiteral("btnFileManagement"),
          QStringLiteral("Manage files"),
          QStringLiteral("cGUIcontrols.hFileManagementClicked")
      )
    , btnExportHtml(
          QStringLiteral("btnExportHtml"),
          QStringLiteral("Web gallery"),
          QStringLiteral("cGUIcontrols.hExportHTMLClicked")
      )
    , btnPresets(
          QStringLiteral("btnPresets"),
          QStringLiteral("Presets\u2026"),
          QStringLiteral("cPresetManager.hLoadPreset")
      )
    , btnPresetsHelp(QStringLiteral("btnPresetsHelp"), QStringLiteral("?"), QString())
    , btnProcess(
          QStringLiteral("btnProcess"),
          QStringLiteral("Process"),
          QStringLiteral("cGUIcontrols.hLoadImages")
      )
    , pubEditPhoto(
          QStringLiteral("pubEditPhoto"),
          {QStringLiteral("Watermark"),
           QStringLiteral("Tint"),
           QStringLiteral("Frame"),
           QStringLiteral("Rounded corners"),
           QStringLiteral("Colour profile"),
           QStringLiteral("Cut out faces"),
           QStringLiteral("Rotate"),
           QStringLiteral("Filters"),
           QStringLiteral("Resize"),
           QStringLiteral("Crop")}
      )
    , pubFileManagementSelect(
          QStringLiteral("pubFileManagementSelect"),
          {QStringLiteral("Sort photos & files"),
           QStringLiteral("EXIF and IPTC"),
           QStringLiteral("Rename files"),
           QStringLiteral("Convert file type"),
           QStringLiteral("QR and bar codes")}
      )
    , dvVCUiMainPropertySelect(QStringLiteral("dvVCUiMainPropertySelect"))
    , dvVCUiMainPropertyView(QStringLiteral("dvVCUiMainPropertyView"))
    , dvVCUiPreviewPropertyView(QStringLiteral("dvVCUiPreviewPropertyView"))
    , dvVCUiApplyOnPropertyView(QStringLiteral("dvVCUiApplyOnPropertyView"))
    , dvVCUiFileTypePropertyView(QStringLiteral("dvVCUiFileTypePropertyView"))
    , dvVCUiMainDestinationPropertyView(QStringLiteral("dvVCUiMainDestinationPropertyView"))
    , myProgressBar(QStringLiteral("myProgressBar"))
    , tfImageCount(QStringLiteral("tfImageCount"), QStringLiteral("0"))
    , cbPhotoToProcess(QStringLiteral("cbPhotoToProcess"), QStringLiteral("All photos"), 1)
    , myTemplatePreview(QStringLiteral("myTemplatePreview"))
    , myTemplateOverlayPreview(QStringLiteral("myTemplateOverlayPreview"))
    , wwAlertWindow(QStringLiteral("wwAlertWindow"))
    , tfHTMLAlertTitle(QStringLiteral("tfHTMLAlertTitle"))
    , tfHTMLAlertInfo(QStringLiteral("tfHTMLAlertInfo"))
    , tfOriginalPictureStrRef(QStringLiteral("tfOriginalPictureStrRef"))
{
    pubEditPhoto.addAction(QStringLiteral("cGUIcontrols.hChooseMainEditFunction"));
    pubFileManagementSelect.addAction(
        QStringLiteral("cGUIcontrols.hChooseMainFileManagementFunction")
    );
    tfHTMLAlertTitle.addAlias(QStringLiteral("tfAlertTitle"));
    tfHTMLAlertInfo.addAlias(QStringLiteral("tfAlertDescription"));
    cbPhotoToProcess.addAction(QStringLiteral("cCollectionViewController.hProcessAllPhotoFlag"));
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
