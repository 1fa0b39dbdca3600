// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

namespace brenvaldo::files {

/// Reads properties of a file.
class DVFileProperty
{
public:
    /// The number of the colour label as decimal text; "none" for a missing file.
    static QString dvGetFileLabel(const QString& path);

    /// Three texts: the file's full name, its extension, and its name without extension.
    static QStringList hGetFileNameProps(const QString& path);
};

} // namespace brenvaldo::files
