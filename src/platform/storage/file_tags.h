// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

namespace brenvaldo::platform::storage {

/// Gives the file the tags that file managers show and search (the extended attribute
/// `user.xdg.tags`), in place of those it has. False when the file system keeps none.
bool setFileTags(const QString& path, const QStringList& tags);

} // namespace brenvaldo::platform::storage
