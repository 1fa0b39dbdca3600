// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QVariantMap>

#include <optional>

/// \file
/// Property lists: dictionaries kept as XML. Values are texts, 64-bit integers, doubles, booleans,
/// dates (UTC, whole seconds), bytes, lists and dictionaries.

namespace brenvaldo::platform::storage {

/// The dictionary in the file; nothing when the file is missing, damaged, or holds anything else.
[[nodiscard]] std::optional<QVariantMap> readPropertyList(const QString& path);

/// Writes the dictionary as a whole file, or leaves what stands there. False as well when a value
/// is of no kind that a property list knows.
[[nodiscard]] bool writePropertyList(const QString& path, const QVariantMap& dictionary);

} // namespace brenvaldo::platform::storage
