// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vips/vips8>

namespace brenvaldo::platform::graphics {

/// The longest side of a block.
inline constexpr int largestBlock = 16;

/// The averages of blocks of `side` by `side` pixels, from the top left corner on; what does not
/// fill a block is left out.
///
/// `pixels` are 8 or 16-bit samples without alpha, and at least one block. `side` is at most
/// `largestBlock`. Throws `vips::VError` when the pipeline can't be built.
[[nodiscard]] vips::VImage blockAverages(const vips::VImage& pixels, int side);

} // namespace brenvaldo::platform::graphics
