// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "filter_image.h"
#include "pixel_block.h"

#include <vips/vips8>

#include <functional>
#include <memory>
#include <vector>

/// \file
/// What a filter adds to a picture: one step of a calculation on blocks of pixels. All steps of a
/// chain are done on one block after the other, so that nothing but the result is ever stored.

namespace brenvaldo::platform::filters {

/// What the values of a colour stand for.
enum class Space { Encoded, Linear };

/// Where a block lies: the place of its first pixel, from the top left corner of the picture.
struct BlockPlace
{
    int x = 0;
    int y = 0;
};

using Blocks = std::vector<const PixelBlock*>;

/// A step: what it makes of the blocks of its inputs, or the pixels that it reads.
struct PixelNode
{
    using Compute
        = std::function<void(const Blocks& inputs, const BlockPlace& place, PixelBlock& out)>;

    Space space = Space::Encoded; ///< of the result
    std::vector<std::shared_ptr<const PixelNode>> inputs = {};
    Compute compute = {}; ///< called from several threads at once; must not throw
    vips::VImage pixels = {}; ///< of a source: RGB, behind them perhaps an alpha
};

/// The picture's colours in `space`.
[[nodiscard]] std::shared_ptr<const PixelNode>
inSpace(const std::shared_ptr<const PixelNode>& node, Space space);

/// A picture as large as `like`.
[[nodiscard]] FilterImage imageOf(const FilterImage& like, PixelNode node);

/// What a filter makes of the colours of a block.
using BlockMap
    = std::function<void(const PixelBlock& in, const BlockPlace& place, PixelBlock& out)>;

/// The picture that `map` makes of each block of `image` in `space`; the alpha stays.
[[nodiscard]] FilterImage mapped(const FilterImage& image, Space space, BlockMap map);

/// The same picture, of sources whose pixels can be read in any order.
[[nodiscard]] FilterImage readInAnyOrder(const FilterImage& image);

/// The calculation as a picture of floats: RGB, with alpha weighted by it where the picture has
/// one.
[[nodiscard]] vips::VImage floatPixels(const FilterImage& image, Space space);

} // namespace brenvaldo::platform::filters
