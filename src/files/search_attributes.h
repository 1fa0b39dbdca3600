// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <optional>

namespace brenvaldo::files {

/// The value of a search attribute of the file at `path`, as text: "FNumber" of a photo gives
/// "2.2".
///
/// Numbers are plain, truth is 1 or 0, dates are in UTC: "2026-11-15 10:44:33 +0000". Nothing where
/// the file has no such value, and for names that are not known.
[[nodiscard]] std::optional<QString> searchAttribute(const QString& path, const QString& name);

} // namespace brenvaldo::files
