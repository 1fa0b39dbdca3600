// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "picture_saver.h"

#include <workspace/functions/functions.h>
#include <workspace/list/photo_list.h>
#include <workspace/neighbours.h>

namespace brenvaldo::workspace {

/// Runs the selected function over the photos of the list, one after the other, in this thread;
/// their pictures are made behind it.
class BatchDriver
{
public:
    struct Links
    {
        const Subsystems& subsystems;
        const Functions& functions;
        const Neighbours& neighbours;
        PhotoList& photos;
        RunJournal& journal;
        std::function<void(const Message& message)> alert;
        /// Shows the new name of an entry.
        std::function<void(const QString& newName, int index)> hUpdateCollectionViewItem;
    };

    explicit BatchDriver(Links links);

    /// The whole run of the process button; it is over when the call returns.
    void hLoadImages();
    /// Renames one entry of the list, or shows its new name when `previewState` is 1.
    void hCalledRenameFilesFunc(const QString& path, int previewState, int index);
    void hCalledCActionFunc();
    /// Name of the file that a run writes for a photo: its own, or that of the chain of C-Actions.
    [[nodiscard]] QString outputName(const QString& path) const;
    /// The photos that the last run of an image function or a gallery took.
    [[nodiscard]] const QStringList& mySelectedImagesNSArray() const { return m_selectedImages; }

private:
    /// What stands when the button is pressed.
    struct Press
    {
        QLatin1String function; ///< id
        QString destination;
        int previewState;
    };

    // One a kind of run.
    void run(const Press& press, const OwnButton& button);
    void run(const Press& press, const PhotoRun& photoRun);
    void run(const Press& press, const InPlaceRun& inPlace);
    void run(const Press& press, const ListRun& listRun);
    void run(const Press& press, const RenamingRun& renaming);

    [[nodiscard]] QStringList takenForDestination(const Press& press, Takes takes);
    [[nodiscard]] PictureSaver::Links savingOf(const QLatin1String& function) const;
    [[nodiscard]] OutputChoice outputChoice() const;
    [[nodiscard]] PhotoOutput
    outputOf(const QString& path, const QString& destination, const OutputChoice& choice) const;

    Links m_links;
    panels::Panels& m_panels;
    QStringList m_selectedImages;
};

} // namespace brenvaldo::workspace
