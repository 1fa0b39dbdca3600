// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace brenvaldo::imaging {

/// How the writing of one photo ended.
enum class ResultWord {
    Ok, ///< the file stands
    Failed, ///< writing failed, or the type is not known
    NotSupported ///< the type is one that the program never writes
};

/// "OK", "Failed" or "Not Supported".
[[nodiscard]] QString text(ResultWord word);

} // namespace brenvaldo::imaging
