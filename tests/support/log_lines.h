// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/foundation/log.h>

#include <QStringList>

namespace brenvaldo::test {

/// Keeps the lines that are logged while it lives.
class LogLines
{
public:
    LogLines()
    {
        platform::setLogSink([this](const QString& line) { m_lines.append(line); });
    }
    LogLines(const LogLines&) = delete;
    LogLines& operator=(const LogLines&) = delete;
    LogLines(LogLines&&) = delete;
    LogLines& operator=(LogLines&&) = delete;
    ~LogLines() { platform::setLogSink({}); }

    [[nodiscard]] const QStringList& lines() const { return m_lines; }

private:
    QStringList m_lines;
};

} // namespace brenvaldo::test
