// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <iosfwd>

namespace brenvaldo::script {

/// Prints events, one line each: the kind and its fields, separated by TABs, in UTF-8.
///
/// TAB, line feed, carriage return and backslash inside a field become \t, \n, \r and \\. Each line
/// is flushed, so that a reader sees it at once.
class EventPrinter
{
public:
    explicit EventPrinter(std::ostream& out);

    void print(const QString& kind, const QStringList& fields = {}) const;

private:
    std::ostream& m_out;
};

} // namespace brenvaldo::script
