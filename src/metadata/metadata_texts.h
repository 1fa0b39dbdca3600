// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// \file
/// The texts that the comment field shows in place of a comment.

namespace brenvaldo::metadata {

/// The file is no image, or can't be written to.
[[nodiscard]] inline QString notSupportedText()
{
    return QStringLiteral("This file type is not supported.");
}

/// The image holds no user comment.
[[nodiscard]] inline QString notSupportedOrAvailableText()
{
    return QStringLiteral("Not supported, or no comment available.");
}

} // namespace brenvaldo::metadata
