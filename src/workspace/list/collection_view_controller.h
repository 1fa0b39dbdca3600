// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "photo_list.h"
#include <workspace/neighbours.h>
#include <workspace/preview/photo_preview.h>

#include <workspace/run/run_journal.h>

#include <controls/action_registry.h>
#include <controls/file_chooser.h>
#include <controls/progress.h>
#include <panels/panels.h>
#include <workspace/functions/functions.h>

namespace brenvaldo::workspace {

/// Fills, orders and edits the photo list, and draws the big preview of its selected photo.
class cCollectionViewController
{
public:
    struct Links
    {
        panels::Panels& panels;
        PhotoList& photos;
        RunJournal& journal;
        controls::FileChooser& chooser;
        PreviewPhotos& previewPhotos;
        const Functions& functions;
        const Subsystems& subsystems;
        const Neighbours& neighbours;
        std::function<void(const QString& title, const QString& text)> hAlertWindow;
    };

    explicit cCollectionViewController(const Links& links);

    /// Makes the actions known by their names.
    void registerActions(controls::ActionRegistry& actions);

    // Filling the list

    /// Asks for photos, or for files of any kind, by the selected function, and appends them.
    void hChoosePhotos();
    /// Appends files without asking, whatever they are.
    void hDroppedPhotos(const QStringList& paths);
    /// Asks for photos and appends them with their full picture.
    void hInsertPhotos();

    // Editing the list

    void hRemoveAllPhoto();
    void hRemoveSelectedPhotoObject();
    /// Puts the file at `path` in the place of the selected entry.
    void hReplaceSelectedPhotoObject(const QString& path);
    /// Ticks or unticks all entries after `cbPhotoToProcess`.
    void hProcessAllPhotoFlag();
    /// A single tick was changed.
    void cbPhotoToProcessClicked();
    void setSortingModeAz();
    void setSortingModezA();
    void hUpdateCollectionViewItem(const QString& newName, int index);
    /// Moves entries by drag to the gap before `proposedIndex`. The indexes, ascending, are not
    /// corrected for entries that have left their place before.
    void acceptDrop(const QList<int>& indexes, int proposedIndex);
    /// Path of the selected entry.
    [[nodiscard]] std::optional<QString> hGetActiveFileFilePath() const;

    // Editing the selected photo's own file

    void hRotateRight();
    void hRotateLeft();
    void hFlipHorizontal();
    void hFlipVertical();

    // Preview

    /// Draws the preview of the selected photo by the selected function.
    void callForPreview();
    /// An empty preview.
    void callForDefaultImage();
    void callForHTMLTemplatePreview(const QString& imageName);
    /// The picture of the chosen gallery template.
    void callForTemplatePreview();
    void hCheckboxPreviewTouched();
    void hCropPositionSegmentedControl();
    void hFlipCropWH();
    void hFlipCropXY();
    void hFlipScaleFixWH();

    // Selecting a function

    /// The tab of `tbvWatermarkType` has changed.
    void tabViewdidSelectTabViewItem();
    /// A field of a function panel was left: its tag selects the function.
    void controlTextDidEndEditing(int tag);

private:
    using MakeEntry = cCollectionViewItem (*)(const QString& path);
    enum class Counter { RunningNumber, ListCount };

    void registerListActions(controls::ActionRegistry& actions);
    void registerPreviewActions(controls::ActionRegistry& actions);

    [[nodiscard]] std::optional<QStringList> chooseFiles();
    [[nodiscard]] std::optional<QStringList> choosePhotoFiles();
    void addAll(
        const QStringList& paths,
        MakeEntry makeEntry,
        Counter counter,
        controls::RunningProgress& bar
    );
    void selectFirstWhenNone();
    void showCount();
    void showFile(const QString& path);
    void sortByName(PhotoList::Order order);
    void rotateSelected(const QString& action, float angle);
    void editSelected(const QString& action, const QuickEdits::Edit& edit);
    void selectionChanged();

    void showNoPhoto();
    [[nodiscard]] bool selectsNonPhoto() const;
    [[nodiscard]] bool isPreviewOn() const;
    void showEffect(const QString& path);
    void layWatermarkOver();
    void swapTexts(controls::TextField& first, controls::TextField& second);
    [[nodiscard]] std::optional<platform::graphics::Image> imageNamed(const QString& name) const;

    panels::Panels& m_panels;
    panels::WindowControls& m_window;
    PhotoList& m_photos;
    RunJournal& m_journal;
    controls::FileChooser& m_chooser;
    PreviewPhotos& m_previewPhotos;
    const Functions& m_functions;
    const Subsystems& m_subsystems;
    const Neighbours& m_neighbours;
    std::function<void(const QString&, const QString&)> m_hAlertWindow;
    platform::Subscription m_selection;
};

} // namespace brenvaldo::workspace
