// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace brenvaldo::files {

/// How a file operation ended.
enum class FileResult {
    Ok,
    Failed,
    NotCreated, ///< a folder could not be made
    Exists, ///< something stood there already
    Success, ///< the word of the folder operations
    No ///< there is no such file
};

/// "OK", "Failed", "FAILED", "EXISTS", "Success" or "NO".
[[nodiscard]] QString text(FileResult result);

} // namespace brenvaldo::files
