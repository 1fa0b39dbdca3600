// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "paths.h"

namespace brenvaldo::platform {

/// "/dir/a.txt" gives "a".
[[nodiscard]] inline QString nameWithoutExtension(const QString& path)
{
    return deletingPathExtension(lastPathComponent(path));
}

} // namespace brenvaldo::platform
