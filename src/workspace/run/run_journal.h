// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <imaging/result_word.h>
#include <platform/foundation/signal.h>

#include <QDateTime>
#include <QList>
#include <QString>

namespace brenvaldo::workspace {

/// What a run did with one photo.
struct RunRecord
{
    QDateTime time = {}; ///< set by the journal where it isn't
    QString function; ///< function id, or the action that edited the photo's own file
    QString source; ///< path of the photo; empty for a preset
    /// Path of the file, or name of the preset, that was to be written; empty when there is none.
    QString target;
    imaging::ResultWord word = imaging::ResultWord::None;
};

/// Keeps what each run did, for as long as the process lives: the place to look up silent failures.
class RunJournal
{
public:
    void add(RunRecord record);
    void clear();
    [[nodiscard]] const QList<RunRecord>& records() const { return m_records; }

    /// One TAB-separated line a record, oldest first.
    [[nodiscard]] QString asText() const;

    platform::Signal<const RunRecord&> recorded;

private:
    QList<RunRecord> m_records;
};

} // namespace brenvaldo::workspace
