// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QString>

namespace brenvaldo::platform::storage {

/// Gives the file or folder at `path` an icon of its own in file managers that follow the desktop's
/// file attributes.
///
/// The picture is kept once in the program's home. Best effort: without a desktop, and for a
/// missing file or a null picture, nothing happens.
void setFileIcon(const QString& path, const QImage& icon);

} // namespace brenvaldo::platform::storage
