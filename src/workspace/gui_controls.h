// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "collection_view_controller.h"
#include "driver_messages.h"
#include "function_table.h"
#include "run_journal.h"

#include <controls/progress.h>
#include <platform/foundation/notification_center.h>
#include <platform/storage/desktop.h>

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
        platform::Desktop& desktop;
        const platform::NotificationCenter& notifications;
        const SubsystemLinks& subsystems;
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

    /// The whole run of the process button; it is over when the call returns.
    void hLoadImages();
    /// Renames one entry of the list, or shows its new name when `previewState` is 1.
    void hCalledRenameFilesFunc(const QString& path, int previewState, int index);
    void hCalledCActionFunc();
    void hChooseScalingDestinationFolder();
    void hShowDestinationFolderInFinder();
    /// Name of the file that a run writes for a photo: its own, or that of the chain of C-Actions.
    [[nodiscard]] QString outputName(const QString& path) const;
    /// Paths of all entries in the order of the list.
    [[nodiscard]] QStringList hGetPhotosFromArrayController() const;
    /// The photos that the last run of an image function or a gallery took.
    [[nodiscard]] const QStringList& mySelectedImagesNSArray() const { return m_selectedImages; }

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
    struct TakenPhoto
    {
        QString path;
        int index = 0; ///< in the photo list
    };
    struct PhotoOutput
    {
        imaging::SourceAndBase photo;
        imaging::OutputTail tail;
    };
    /// What all files of a run are written as, read once before its loop.
    struct OutputChoice
    {
        QString type;
        QString compressionLevel;
    };
    using RunPhoto = std::function<std::optional<QString>(const PhotoOutput&)>;

    // Function selection
    void applyHolders(const HolderPlan& plan);
    void applyPresetButtons(PresetButtons change);
    void pressSection(controls::Button& pressed);
    void showSection(controls::PopUpButton& functions);
    [[nodiscard]] bool isBatchSortTab() const;

    // Batch driver
    void show(const Message& message);
    void runUpload();
    void runExif();
    void runRenaming(int previewState, const QString& destination);
    void runOnPhotos(const QString& function, const QString& destination);
    void runConversion(const QString& destination);
    void runEditFunction(const QStringList& photos, const QString& destination);
    void runWatermark(const QStringList& photos, const QString& destination);
    void runGallery(const QStringList& photos, const QString& destination);
    void runEach(
        const QLatin1String& function,
        const QStringList& photos,
        const QString& destination,
        const RunPhoto& runPhoto
    );
    [[nodiscard]] RunPhoto photoRunAt(int editIndex);
    [[nodiscard]] std::optional<QString> resized(const PhotoOutput& output);
    [[nodiscard]] QString resizedToMaximum(const PhotoOutput& output);
    [[nodiscard]] std::optional<QString> resizedToBox(const PhotoOutput& output);
    [[nodiscard]] QString cropped(const PhotoOutput& output) const;
    [[nodiscard]] TintSettings tintSettings() const;
    [[nodiscard]] QStringList takenByFullRule() const;
    [[nodiscard]] QStringList takenByTick() const;
    [[nodiscard]] OutputChoice outputChoice() const;
    [[nodiscard]] PhotoOutput
    outputOf(const QString& path, const QString& destination, const OutputChoice& choice) const;
    [[nodiscard]] controls::RunningProgress shownBar();
    void record(const QLatin1String& function, const PhotoOutcome& outcome);

    // Controls of the panels
    void registerFunctionActions(controls::ActionRegistry& actions);
    void registerDriverActions(controls::ActionRegistry& actions);
    void registerPanelActions(controls::ActionRegistry& actions);
    void registerColorWellActions(controls::ActionRegistry& actions);
    void switchSimulationOff();

    panels::Panels& m_panels;
    panels::WindowControls& m_window;
    PhotoList& m_photos;
    RunJournal& m_journal;
    controls::FileChooser& m_chooser;
    platform::Desktop& m_desktop;
    const platform::NotificationCenter& m_notifications;
    const SubsystemLinks& m_subsystems;
    cCollectionViewController& m_collectionView;
    platform::Signal<const QString&, const QString&>& m_alertShown;
    QStringList m_selectedImages;
};

} // namespace brenvaldo::workspace
