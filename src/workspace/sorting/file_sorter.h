// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "sort_criteria.h"

#include <controls/action_registry.h>
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
    /// Sorts one file. Unlike the run of the button it needs the criterion of the picture.
    void hBatchSortPhotos(const QString& path);

    // The values of a criterion can be changed while its box is ticked.
    void hFilePropEnabled();
    void hFileNameEnabled();
    void hFileTagEnabled();

    void btnChooseDestFolder();
    void hShowBatchDestinationFolder();
    void closeCustomSheetAlertbSort();

private:
    /// What a press of the button reads.
    struct Settings
    {
        SortCriteria criteria;
        int handling; ///< copy, move, alias, trash; nothing for any other number
        QString destination;

        [[nodiscard]] bool trashes() const;
    };

    [[nodiscard]] Settings settings() const;
    [[nodiscard]] static QString missingValues(const Settings& settings);
    void sort(const QStringList& paths, const Settings& settings);
    void handle(const QString& path, const Settings& settings);

    Links m_links;
    panels::SortingPanel& m_panel;
};

} // namespace brenvaldo::workspace
