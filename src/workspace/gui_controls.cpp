// SPDX-License-Identifier: GPL-3.0-or-later
#include "gui_controls.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::workspace {

namespace {

const QString guiControlsClass = u"cGUIcontrols"_s;

/// Actions that do nothing but draw the preview anew.
QStringList previewActions()
{
    return {
        u"hAddTintAngle"_s,
        u"hAddTintDuoTone"_s,
        u"hAddTintPosition"_s,
        u"hAddTintRenderMethod"_s,
        u"hAddTintPercWidth"_s,
        u"hAddFramePositionCallsForPreview"_s,
        u"hAddFrameRenderMethodCallsForPreview"_s,
        u"hAddRoundedCornersPositionCallsForPreview"_s,
        u"hCtPSelectICCProfileCallPreview"_s,
        u"hCtPRenderIntentCallPreview"_s,
        u"hSepiaCallsForPreview"_s,
        u"hScreenSharpnessCallsForPreview"_s,
        u"hScreenMaskCallsForPreview"_s,
        u"hScreenInvertCallsForPreview"_s,
        u"hUnsharpMaskIntensityCallsForPreview"_s,
        u"hMonochromeIntensityCallsForPreview"_s,
    };
}

/// Registers an operation of `guiControls` as an action of its name.
auto adderTo(controls::ActionRegistry& actions, cGUIcontrols& guiControls)
{
    return [&actions, &guiControls](const QString& name, void (cGUIcontrols::*action)()) {
        actions.add(guiControlsClass, name, [&guiControls, action](const auto&) {
            (guiControls.*action)();
        });
    };
}

} // namespace

cGUIcontrols::cGUIcontrols(const Links& links)
    : m_panels(links.panels)
    , m_window(links.panels.window)
    , m_photos(links.photos)
    , m_chooser(links.chooser)
    , m_desktop(links.desktop)
    , m_defaults(links.defaults)
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
    const auto add = adderTo(actions, *this);
    add(u"hEditPhotoClicked"_s, &cGUIcontrols::hEditPhotoClicked);
    add(u"hFileManagementClicked"_s, &cGUIcontrols::hFileManagementClicked);
    add(u"hExportHTMLClicked"_s, &cGUIcontrols::hExportHTMLClicked);
    add(u"hChooseMainEditFunction"_s, &cGUIcontrols::hChooseMainEditFunction);
    add(u"hChooseMainFileManagementFunction"_s, &cGUIcontrols::hChooseMainFileManagementFunction);
    add(u"hChooseHTMLExportTemplate"_s, &cGUIcontrols::hChooseHTMLExportTemplate);
    add(u"tabViewdidSelectTabViewItem"_s, &cGUIcontrols::tabViewdidSelectTabViewItem);
    add(u"hChooseScaleTypeFunction"_s, &cGUIcontrols::hChooseScaleTypeFunction);
    add(u"hChooseCropTypeFunction"_s, &cGUIcontrols::hChooseCropTypeFunction);
}

void cGUIcontrols::registerDriverActions(controls::ActionRegistry& actions)
{
    const auto add = adderTo(actions, *this);
    actions.add(guiControlsClass, u"hLoadImages"_s, [this](const auto&) {
        m_driver.hLoadImages();
    });
    actions.add(guiControlsClass, u"hCalledCActionFunc"_s, [this](const auto&) {
        m_driver.hCalledCActionFunc();
    });
    add(u"hChooseScalingDestinationFolder"_s, &cGUIcontrols::hChooseScalingDestinationFolder);
    add(u"hShowDestinationFolderInFinder"_s, &cGUIcontrols::hShowDestinationFolderInFinder);
    add(u"hImportTWMCActions"_s, &cGUIcontrols::hImportTWMCActions);
    add(u"hRemoveTWMCActions"_s, &cGUIcontrols::hRemoveTWMCActions);
    add(u"closeApplicationAlertSheetObjC"_s, &cGUIcontrols::closeApplicationAlertSheetObjC);
}

void cGUIcontrols::registerPanelActions(controls::ActionRegistry& actions)
{
    const auto add = adderTo(actions, *this);
    for (const QString& name : previewActions()) {
        actions.add(guiControlsClass, name, [this](const controls::Sender&) {
            m_collectionView.callForPreview();
        });
    }
    add(u"hAddTintGradient"_s, &cGUIcontrols::hAddTintGradient);
    add(u"hAddTintActivePhotoSize"_s, &cGUIcontrols::hAddTintActivePhotoSize);
    add(u"hAddTintColorWell"_s, &cGUIcontrols::hAddTintColorWell);
    add(u"hAddRoundedCornersTypeCallsForPreview"_s,
        &cGUIcontrols::hAddRoundedCornersTypeCallsForPreview);
    add(u"hAddRoundedCornersBackGroundCallsForPreview"_s,
        &cGUIcontrols::hAddRoundedCornersBackGroundCallsForPreview);
    add(u"hAddRoundedCornersBorderCallsForPreview"_s,
        &cGUIcontrols::hAddRoundedCornersBorderCallsForPreview);
    add(u"hAddRotationBackGroundCallsForPreview"_s,
        &cGUIcontrols::hAddRotationBackGroundCallsForPreview);
    add(u"hAddFramingPosition"_s, &cGUIcontrols::hAddFramingPosition);
    add(u"hInsertPhotoProperty"_s, &cGUIcontrols::hInsertPhotoProperty);
    add(u"onClickPubFilterType"_s, &cGUIcontrols::onClickPubFilterType);
    add(u"hTxtSimulationModePressed"_s, &cGUIcontrols::hTxtSimulationModePressed);
    add(u"hImgSimulationModePressed"_s, &cGUIcontrols::hImgSimulationModePressed);
    add(u"hPrintOrigPicture"_s, &cGUIcontrols::hPrintOrigPicture);
}

} // namespace brenvaldo::workspace
