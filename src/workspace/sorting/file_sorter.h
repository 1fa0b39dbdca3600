// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <controls/action_registry.h>
#include <files/file_result.h>
#include <panels/sorting_panel.h>
#include <platform/storage/desktop.h>
#include <workspace/functions/subsystems.h>
#include <workspace/run/driver_messages.h>
#include <workspace/run/run_journal.h>

#include <QStringList>

#include <functional>

namespace brenvaldo::workspace {

/// Sorts files by criteria: those that meet all of them go into one folder, or to the trash.
class DVFileSorterRoutine
{
public:
    struct Links
    {
        const Subsystems& subsystems;
        platform::storage::Desktop& desktop;
        RunJournal& journal;
        std::function<void(const Message& message)> alert;
    };

    explicit DVFileSorterRoutine(Links links);

    void registerActions(controls::ActionRegistry& actions);

    /// Asks for files and sorts them. A file at the target is replaced without a question.
    void hSortFiles();

    // The values of a criterion can be changed while its box is ticked.
    void hFilePropEnabled();
    void hFileNameEnabled();
    void hFileTagEnabled();

    void btnChooseDestFolder();
    void hShowBatchDestinationFolder();
    void closeCustomSheetAlertbSort();

private:
    enum class Handling { Copy, Move, Alias, Trash };

    [[nodiscard]] Handling handling() const;
    [[nodiscard]] QString destination() const;
    [[nodiscard]] QString missingValues() const;
    [[nodiscard]] bool liesInDestination(const QStringList& paths) const;
    void sort(const QStringList& paths);
    void handle(const QString& path);
    [[nodiscard]] files::FileResult handled(const QString& path, const QString& target) const;

    Links m_links;
    panels::SortingPanel& m_panel;
};

} // namespace brenvaldo::workspace
