// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDir>

namespace brenvaldo::test {

/// The names of all that a folder holds, hidden files too.
inline QStringList allEntries(const QString& folder)
{
    return QDir(folder).entryList(
        QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name
    );
}

} // namespace brenvaldo::test
