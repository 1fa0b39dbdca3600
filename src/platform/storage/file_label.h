// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <optional>

namespace brenvaldo::platform::storage {

/// The colour label of a file: 0 none, 1 grey, 2 green, 3 purple, 4 blue, 5 yellow, 6 red, 7
/// orange.
///
/// Kept in the extended attribute `user.kMDItemFSLabel` as a decimal number; a file without one may
/// carry the label of a file server in `user.com.apple.FinderInfo`. Nothing when there is no such
/// file.
[[nodiscard]] std::optional<int> fileLabel(const QString& path);

} // namespace brenvaldo::platform::storage
