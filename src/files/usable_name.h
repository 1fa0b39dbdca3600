// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

/// \file
/// Names that were put together from settings and from what photos tell of themselves: they must be
/// names that a folder can hold.

namespace brenvaldo::files {

/// A foreign text as a part of a name: what parts folders becomes "-", line breaks and other
/// control characters become blanks.
[[nodiscard]] QString asNamePart(const QString& value);

/// The name without separators of folders, and shortened before its extension where it takes more
/// than 255 bytes; "" for one that no file can have: "", "." and "..".
[[nodiscard]] QString usableName(const QString& made);

} // namespace brenvaldo::files
