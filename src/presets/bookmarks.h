// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QUrl>

#include <optional>

namespace brenvaldo::presets {

/// Remembers folders and files of the user.
class DVbookmarks
{
public:
    /// Nothing when `url` leads to no file or folder of this machine.
    [[nodiscard]] std::optional<QByteArray> bookmarkForURL(const QUrl& url) const;

    /// Nothing for a damaged bookmark and for a stale one, whose file or folder is gone. The path
    /// of a folder has no "/" at its end.
    [[nodiscard]] std::optional<QUrl> urlForBookmark(const QByteArray& bookmark) const;
};

} // namespace brenvaldo::presets
