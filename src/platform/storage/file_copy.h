// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "file_system.h"

namespace brenvaldo::platform::storage {

/// Copies one plain file whole or not at all, with its dates, mode and extended attributes. The
/// target must be free.
[[nodiscard]] bool copyPlainFile(const SourceAndTarget& paths);

/// Gives a copied folder the dates, mode and extended attributes of its source.
void copyFolderAttributes(const SourceAndTarget& folders);

} // namespace brenvaldo::platform::storage
