// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/foundation/literals.h>

#include <QString>

/// \file
/// The texts that the comment field shows in place of a comment.

namespace brenvaldo::metadata {

/// The file is no image, or can't be written to.
[[nodiscard]] inline QString notSupportedText() { return u"This file type is not supported."_s; }

/// The image holds no user comment.
[[nodiscard]] inline QString notSupportedOrAvailableText()
{
    return u"Not supported, or no comment available."_s;
}

} // namespace brenvaldo::metadata
