// SPDX-License-Identifier: GPL-3.0-or-later
#include "bookmarks.h"

#include <platform/archives/bookmark.h>

namespace brenvaldo::presets {

std::optional<QByteArray> DVbookmarks::bookmarkForURL(const QUrl& url) const
{
    return platform::archives::bookmarkFor(url.adjusted(QUrl::StripTrailingSlash).toLocalFile());
}

std::optional<QUrl> DVbookmarks::urlForBookmark(const QByteArray& bookmark) const
{
    const std::optional<QString> path = platform::archives::pathOfBookmark(bookmark);
    if (!path)
        return std::nullopt;
    return QUrl::fromLocalFile(*path).adjusted(QUrl::StripTrailingSlash);
}

} // namespace brenvaldo::presets
