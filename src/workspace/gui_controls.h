// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <workspace/list/collection_view_controller.h>

#include <platform/foundation/notification_center.h>
#include <platform/foundation/user_defaults.h>
#include <platform/storage/desktop.h>
#include <workspace/run/batch_driver.h>

namespace brenvaldo::workspace {

/// The main controller: selects functions, runs the process button's batch, shows alerts, and
/// answers the controls of the function panels.
class cGUIcontrols
{
public:
    struct Links
    {
        panels::Panels& panels;
        PhotoList& photos;
        RunJournal& journal;
        controls::FileChooser& chooser;
        platform::storage::Desktop& desktop;
        const platform::UserDefaults& defaults;
        const platform::NotificationCenter& notifications;
        const Functions& functions;
        const Subsystems& subsystems;
        const Neighbours& neighbours;
        cCollectionViewController& collectionView;
        platform::Signal<const QString&, const QString&>& alertShown;
    };

    explicit cGUIcontrols(const Links& links);

    /// Makes the actions known by their names.
    void registerActions(controls::ActionRegistry& actions);

    // Function selection

    void hSetInitialView();
    void hEditPhotoClicked();
    void hFileManagementClicked();
    void hExportHTMLClicked();
    void hChooseMainEditFunction();
    void hChooseMainFileManagementFunction();
    void hChooseHTMLExportTemplate();
    void hGetMainEditFunction();
    void hGetMainFileManagementFunction();
    /// The tab of `mySortTabView` has changed.
    void tabViewdidSelectTabViewItem();
    void hChooseScaleTypeFunction();
    void hChooseCropTypeFunction();

    // Batch driver

    /// The run of the process button.
    [[nodiscard]] BatchDriver& driver() { return m_driver; }
    void hChooseScalingDestinationFolder();
    void hShowDestinationFolderInFinder();
    /// Paths of all entries in the order of the list.
    [[nodiscard]] QStringList hGetPhotosFromArrayController() const;

    // The chain of C-Actions

    /// Asks for a file of an action and adds it to the list.
    void hImportTWMCActions();
    /// Removes the row that is selected.
    void hRemoveTWMCActions();
    /// The list as the text that a preset keeps.
    [[nodiscard]] QString hGetTWMActionsToStore() const;
    /// Adds the rows of such a text to the list.
    void hLoadTWMActions(const QString& chain);
    /// The name that the actions of `rows` make of `name`; "" for no rows.
    [[nodiscard]] static QString
    hRenameTWMFile(const QString& path, const QString& name, const QList<QStringList>& rows);

    // Alerts

    void hAlertWindow(const QString& title, const QString& text);
    void closeApplicationAlertSheetObjC();

    // Controls of the panels

    void hAddTintGradient();
    void hAddTintActivePhotoSize();
    void hAddTintColorWell();
    void hAddRoundedCornersTypeCallsForPreview();
    void hAddRoundedCornersBackGroundCallsForPreview();
    void hAddRoundedCornersBorderCallsForPreview();
    void hAddRotationBackGroundCallsForPreview();
    void hAddFramingPosition();
    /// Appends the token of the selected photo property to `tvFileName`.
    void hInsertPhotoProperty();
    void onClickPubFilterType();
    void hTxtSimulationModePressed();
    void hImgSimulationModePressed();
    void hPrintOrigPicture();

private:
    // Function selection
    void applyHolders(const HolderPlan& plan);
    void applyPresetButtons(PresetButtons change);
    void pressSection(controls::Button& pressed);
    void showSection(controls::PopUpButton& functions);

    // Controls of the panels
    void registerFunctionActions(controls::ActionRegistry& actions);
    void registerDriverActions(controls::ActionRegistry& actions);
    void registerPanelActions(controls::ActionRegistry& actions);
    void registerColorWellActions(controls::ActionRegistry& actions);
    void switchSimulationOff();

    panels::Panels& m_panels;
    panels::WindowControls& m_window;
    PhotoList& m_photos;
    controls::FileChooser& m_chooser;
    platform::storage::Desktop& m_desktop;
    const platform::UserDefaults& m_defaults;
    const platform::NotificationCenter& m_notifications;
    const Functions& m_functions;
    const Subsystems& m_subsystems;
    const Neighbours& m_neighbours;
    cCollectionViewController& m_collectionView;
    platform::Signal<const QString&, const QString&>& m_alertShown;
    BatchDriver m_driver;
};

} // namespace brenvaldo::workspace
