// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <optional>

namespace brenvaldo::platform::storage {

/// The whole file as a text; nothing when it can't be read or is not valid UTF-8. A byte order mark
/// is left out.
[[nodiscard]] std::optional<QString> readTextFile(const QString& path);

} // namespace brenvaldo::platform::storage
