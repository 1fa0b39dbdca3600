// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// \file
/// Path rules of the platform's strings. They work on the text alone and never ask the disk.

namespace brenvaldo::platform {

/// "/dir/a.txt" gives "a.txt", "/dir/" gives "dir", "/" gives "/".
[[nodiscard]] QString lastPathComponent(const QString& path);

/// "a.txt.old" gives "old"; ".x", "a." and an extension with a blank give "".
[[nodiscard]] QString pathExtension(const QString& path);

/// "/dir/a.txt" gives "/dir/a"; what has no extension stays as it is, less trailing slashes.
[[nodiscard]] QString deletingPathExtension(const QString& path);

/// "a" with "txt" gives "a.txt"; an empty extension gives "a."; an empty path stays empty.
[[nodiscard]] QString appendingPathExtension(const QString& path, const QString& extension);

/// Joins with exactly one "/" in between: "/dir/" with "/a" gives "/dir/a".
[[nodiscard]] QString appendingPathComponent(const QString& path, const QString& component);

/// "/dir/a" gives "/dir", "/dir" gives "/", "a" gives "".
[[nodiscard]] QString deletingLastPathComponent(const QString& path);

} // namespace brenvaldo::platform
