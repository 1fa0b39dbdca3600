// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace brenvaldo::platform::storage {

/// Moves a file, a link (never what it leads to) or a folder to the user's trash, from where the
/// desktop can restore it.
///
/// False when it can't: nothing stands at `path`, or its volume has no trash. It then stays.
[[nodiscard]] bool moveToTrash(const QString& path);

} // namespace brenvaldo::platform::storage
