// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QUrl>

namespace brenvaldo::platform::storage {

/// Hands files and addresses to the desktop; a script prints them instead.
class Desktop
{
public:
    Desktop() = default;
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;
    Desktop(Desktop&&) = delete;
    Desktop& operator=(Desktop&&) = delete;
    virtual ~Desktop() = default;

    virtual void openUrl(const QUrl& url) = 0;
    /// Shows the file or folder at `path` in the file manager.
    virtual void reveal(const QString& path) = 0;
};

} // namespace brenvaldo::platform::storage
