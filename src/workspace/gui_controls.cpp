// SPDX-License-Identifier: GPL-3.0-or-later
#include "gui_controls.h"

namespace brenvaldo::workspace {

namespace {

const QString className = u"cGUIcontrols"_qs;

/// Actions that do nothing but draw the preview anew.
QStringList previewActions()
{
    return {
        u"hAddTintAngle"_qs,
        u"hAddTintDuoTone"_qs,
        u"hAddTintPosition"_qs,
        u"hAddTintRenderMethod"_qs,
        u"hAddTintPercWidth"_qs,
        u"hAddFramePositionCallsForPreview"_qs,
        u"hAddFrameRenderMethodCallsForPreview"_qs,
        u"hAddRoundedCornersPositionCallsForPreview"_qs,
        u"hCtPSelectICCProfileCallPreview"_qs,
        u"hCtPRenderIntentCallPreview"_qs,
        u"hSepiaCallsForPreview"_qs,
        u"hScreenSharpnessCallsForPreview"_qs,
        u"hScreenMaskCallsForPreview"_qs,
        u"hScreenInvertCallsForPreview"_qs,
        u"hUnsharpMaskIntensityCallsForPreview"_qs,
        u"hMonochromeIntensityCallsForPreview"_qs,
    };
}

} // namespace

cGUIcontrols::cGUIcontrols(const Links& links)
    : m_panels(links.panels)
    , m_window(links.panels.window)
    , m_photos(links.photos)
    , m_chooser(links.chooser)
    , m_desktop(links.desktop)
    , m_notifications(links.notifications)
    , m_functions(links.functions)
    , m_subsystems(links.subsystems)
    , m_neighbours(links.neighbours)
    , m_collectionView(links.collectionView)
    , m_alertShown(links.alertShown)
    , m_driver(
          {.subsystems = links.subsystems,
           .functions = links.functions,
           .neighbours = links.neighbours,
           .photos = links.photos,
           .journal = links.journal,
           .alert = [this](const Message& message) { hAlertWindow(message.title, message.text); },
           .hUpdateCollectionViewItem =
               [this](const QString& newName, int index) {
                   m_collectionView.hUpdateCollectionViewItem(newName, index);
               }}
      )
{
}

QStringList cGUIcontrols::hGetPhotosFromArrayController() const
{
    QStringList paths;
    for (const cCollectionViewItem& entry : m_photos.entries())
        paths.append(entry.myPhotoDescription);
    return paths;
}

void cGUIcontrols::registerActions(controls::ActionRegistry& actions)
{
    registerFunctionActions(actions);
    registerDriverActions(actions);
    registerPanelActions(actions);
    registerColorWellActions(actions);
}

void cGUIcontrols::registerFunctionActions(controls::ActionRegistry& actions)
{
    const auto add = [&](const QString& name, void (cGUIcontrols::*action)()) {
        actions.add(className, name, [this, action](const auto&) { (this->*action)(); });
    };
    add(u"hEditPhotoClicked"_qs, &cGUIcontrols::hEditPhotoClicked);
    add(u"hFileManagementClicked"_qs, &cGUIcontrols::hFileManagementClicked);
    add(u"hExportHTMLClicked"_qs, &cGUIcontrols::hExportHTMLClicked);
    add(u"hChooseMainEditFunction"_qs, &cGUIcontrols::hChooseMainEditFunction);
    add(u"hChooseMainFileManagementFunction"_qs, &cGUIcontrols::hChooseMainFileManagementFunction);
    add(u"hChooseHTMLExportTemplate"_qs, &cGUIcontrols::hChooseHTMLExportTemplate);
    add(u"tabViewdidSelectTabViewItem"_qs, &cGUIcontrols::tabViewdidSelectTabViewItem);
    add(u"hChooseScaleTypeFunction"_qs, &cGUIcontrols::hChooseScaleTypeFunction);
    add(u"hChooseCropTypeFunction"_qs, &cGUIcontrols::hChooseCropTypeFunction);
}

void cGUIcontrols::registerDriverActions(controls::ActionRegistry& actions)
{
    const auto add = [&](const QString& name, void (cGUIcontrols::*action)()) {
        actions.add(className, name, [this, action](const auto&) { (this->*action)(); });
    };
    actions.add(className, u"hLoadImages"_qs, [this](const auto&) { m_driver.hLoadImages(); });
    actions.add(className, u"hCalledCActionFunc"_qs, [this](const auto&) {
        m_driver.hCalledCActionFunc();
    });
    add(u"hChooseScalingDestinationFolder"_qs, &cGUIcontrols::hChooseScalingDestinationFolder);
    add(u"hShowDestinationFolderInFinder"_qs, &cGUIcontrols::hShowDestinationFolderInFinder);
    add(u"closeApplicationAlertSheetObjC"_qs, &cGUIcontrols::closeApplicationAlertSheetObjC);
}

void cGUIcontrols::registerPanelActions(controls::ActionRegistry& actions)
{
    const auto add = [&](const QString& name, void (cGUIcontrols::*action)()) {
        actions.add(className, name, [this, action](const auto&) { (this->*action)(); });
    };
    for (const QString& name : previewActions()) {
        actions.add(className, name, [this](const controls::Sender&) {
            m_collectionView.callForPreview();
        });
    }
    add(u"hAddTintGradient"_qs, &cGUIcontrols::hAddTintGradient);
    add(u"hAddTintActivePhotoSize"_qs, &cGUIcontrols::hAddTintActivePhotoSize);
    add(u"hAddTintColorWell"_qs, &cGUIcontrols::hAddTintColorWell);
    add(u"hAddRoundedCornersTypeCallsForPreview"_qs,
        &cGUIcontrols::hAddRoundedCornersTypeCallsForPreview);
    add(u"hAddRoundedCornersBackGroundCallsForPreview"_qs,
        &cGUIcontrols::hAddRoundedCornersBackGroundCallsForPreview);
    add(u"hAddRoundedCornersBorderCallsForPreview"_qs,
        &cGUIcontrols::hAddRoundedCornersBorderCallsForPreview);
    add(u"hAddRotationBackGroundCallsForPreview"_qs,
        &cGUIcontrols::hAddRotationBackGroundCallsForPreview);
    add(u"hAddFramingPosition"_qs, &cGUIcontrols::hAddFramingPosition);
    add(u"hInsertPhotoProperty"_qs, &cGUIcontrols::hInsertPhotoProperty);
    add(u"onClickPubFilterType"_qs, &cGUIcontrols::onClickPubFilterType);
    add(u"hTxtSimulationModePressed"_qs, &cGUIcontrols::hTxtSimulationModePressed);
    add(u"hImgSimulationModePressed"_qs, &cGUIcontrols::hImgSimulationModePressed);
    add(u"hPrintOrigPicture"_qs, &cGUIcontrols::hPrintOrigPicture);
}

} // namespace brenvaldo::workspace
