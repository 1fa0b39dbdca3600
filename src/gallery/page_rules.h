// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <array>
#include <optional>

namespace brenvaldo::gallery {

/// The pages that `photos` photos need at `perPage` a page; 0, no page at all, when they fill their
/// pages exactly.
[[nodiscard]] int pageCount(int photos, int perPage);

/// The columns that a number in the panel stands for: 1 to 20.
[[nodiscard]] int columnCount(int asked);

/// Widths of the cells in percent with six decimals, from wide windows to narrow ones; the last is
/// "100".
///
/// Each is a multiple of the one before and may pass 100.
[[nodiscard]] std::array<QString, 6> columnWidths(int columns);

/// The height that a thumbnail of `width` pixels takes by the index of the ratio pop-up; nothing
/// for an index without a ratio.
[[nodiscard]] std::optional<int> thumbnailHeight(int ratioIndex, int width);

} // namespace brenvaldo::gallery
