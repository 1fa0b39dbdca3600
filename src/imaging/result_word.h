// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace brenvaldo::imaging {

/// What an operation answers for one photo. The text is made at the edge: in the journal, the
/// window and the output of a script.
enum class ResultWord {
    Ok, ///< the file stands
    Failed, ///< writing failed, or the type is not known
    NotSupported, ///< the type is one that the program never writes
    IoFailure, ///< the photo ended a watermark run
    Exists, ///< something stands at the target already
    None ///< the operation has no word
};

/// "OK", "Failed", "Not Supported", "IOFailure", "EXISTS" or "".
[[nodiscard]] QString text(ResultWord word);

} // namespace brenvaldo::imaging
