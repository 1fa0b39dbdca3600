// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QString>

namespace brenvaldo::gallery {

/// A picture of the program for files and folders, by its name; null for one that there is not.
[[nodiscard]] QImage icon(const QString& name);

} // namespace brenvaldo::gallery
