// SPDX-License-Identifier: GPL-3.0-or-later
#include "run_journal.h"

namespace brenvaldo::workspace {

void RunJournal::add(RunRecord record)
{
    if (record.time.isNull())
        record.time = QDateTime::currentDateTime();
    m_records.append(record);
    recorded(record);
}

void RunJournal::clear() { m_records.clear(); }

QString RunJournal::asText() const
{
    QString text;
    for (const RunRecord& record : m_records) {
        const QStringList fields{
            record.time.toString(Qt::ISODate),
            record.function,
            record.source,
            record.target,
            imaging::text(record.word)};
        text += fields.join(QLatin1Char('\t')) + QLatin1Char('\n');
    }
    return text;
}

} // namespace brenvaldo::workspace
