// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <controls/action_registry.h>
#include <imaging/result_word.h>
#include <platform/storage/desktop.h>
#include <platform/storage/file_system.h>
#include <workspace/functions/subsystems.h>
#include <workspace/list/collection_view_controller.h>
#include <workspace/run/run_journal.h>

#include <functional>
#include <optional>

namespace brenvaldo::workspace {

/// Sends the active photo into one of six folders, or to the trash. A tag from 1 to 6 picks the
/// folder; any other does nothing. What stands at a target stays, but for a copy of another type.
class ManualSort
{
public:
    struct Links
    {
        const Subsystems& subsystems;
        platform::storage::Desktop& desktop;
        cCollectionViewController& collectionView;
        RunJournal& journal;
        /// The name that the photo at a path gets: its own, or that of the chain of C-Actions.
        std::function<QString(const QString& path)> outputName;
    };

    explicit ManualSort(Links links);

    void registerActions(controls::ActionRegistry& actions);

    void hSetSortDestinationFolder(int tag);
    /// Copies the file as it is, or writes it as the chosen type.
    void hCopyFileToFolder(int tag);
    /// Moves the file as it is; the entry of the list follows.
    void hMoveFileToFolder(int tag);
    void hAliasFileToFolder(int tag);
    void hTrashPhoto();
    void hShowSortDestinationInFinder(int tag);

private:
    using SourceAndTarget = platform::storage::SourceAndTarget;

    [[nodiscard]] controls::TextField* field(int tag) const;
    [[nodiscard]] std::optional<SourceAndTarget> activePhoto(int tag) const;
    [[nodiscard]] imaging::ResultWord converted(const SourceAndTarget& paths) const;
    /// Frees the folder from what killed processes have left there; false when there is none.
    [[nodiscard]] bool prepareFolder(int tag) const;
    [[nodiscard]] bool keepsType() const;
    void
    record(const QString& action, const SourceAndTarget& paths, imaging::ResultWord word) const;

    Links m_links;
};

} // namespace brenvaldo::workspace
