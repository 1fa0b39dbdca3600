// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

namespace brenvaldo::platform::storage {

/// Renames within a file system, never over anything, not even over what appears at this moment.
/// `errno` tells why it failed.
[[nodiscard]] bool renameToFreeName(const QByteArray& source, const QByteArray& target);

} // namespace brenvaldo::platform::storage
