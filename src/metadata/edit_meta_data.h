// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <controls/containers.h>
#include <controls/range_controls.h>
#include <controls/text_controls.h>

#include <QStringList>

#include <cstdint>

namespace brenvaldo::metadata {

/// Holds files, their comment and a log of what was done with them; nothing works on it yet.
class cEditMetaData
{
public:
    [[nodiscard]] const QStringList& myEMMfiles() const { return m_files; }
    void setMyEMMfiles(const QStringList& files) { m_files = files; }

    [[nodiscard]] const QList<QStringList>& ocTheLogData() const { return m_logData; }
    void setOcTheLogData(const QList<QStringList>& rows) { m_logData = rows; }

    [[nodiscard]] std::int32_t myLogCounter() const { return m_logCounter; }
    void setMyLogCounter(std::int32_t count) { m_logCounter = count; }

    [[nodiscard]] controls::ProgressIndicator* myProgressBarke() const { return m_progressBar; }
    void setMyProgressBarke(controls::ProgressIndicator* bar) { m_progressBar = bar; }

    [[nodiscard]] controls::TextField* tfEMDuserCommentField() const { return m_commentField; }
    void setTfEMDuserCommentField(controls::TextField* field) { m_commentField = field; }

    [[nodiscard]] controls::ArrayController* myLogTableViewController() const { return m_rows; }
    void setMyLogTableViewController(controls::ArrayController* rows) { m_rows = rows; }

    [[nodiscard]] controls::TableView* theLogTable() const { return m_table; }
    void setTheLogTable(controls::TableView* table) { m_table = table; }

private:
    QStringList m_files;
    QList<QStringList> m_logData;
    std::int32_t m_logCounter = 0;
    controls::ProgressIndicator* m_progressBar = nullptr;
    controls::TextField* m_commentField = nullptr;
    controls::ArrayController* m_rows = nullptr;
    controls::TableView* m_table = nullptr;
};

} // namespace brenvaldo::metadata
