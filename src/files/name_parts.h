// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace brenvaldo::files {

/// A file's name without and with its extension, taken apart for a transform.
struct NameParts
{
    QString base; ///< in normalisation form C
    QString extension; ///< "" where the name has none
};

[[nodiscard]] NameParts partsOf(const QString& name);

/// Base and extension joined by a dot; the base alone where the extension is "".
[[nodiscard]] QString joined(const NameParts& parts);

/// The text in normalisation form C.
[[nodiscard]] QString precomposed(const QString& text);

} // namespace brenvaldo::files
