// SPDX-License-Identifier: GPL-3.0-or-later
#include "screen_scaling.h"

#include "block_average.h"
#include "image_node.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace brenvaldo::platform::graphics {

Image scaledForScreen(const Image& image, PixelSize size)
{
    const bool shrinks = size.width < image.width() && size.height < image.height();
    if (shrinks && image.node()->smaller)
        return image.node()->smaller(size);
    const int side
        = std::min({image.width() / size.width, image.height() / size.height, largestBlock});
    if (side < 2 || image.hasAlpha())
        return image.scaledTo(size);
    const ImageNode& node = *image.node();
    const PixelSize blocks = {image.width() / side, image.height() / side};
    return builtImage(
               node, blocks, [&] { return node.withPixels(blockAverages(node.pixels, side)); }
    ).scaledTo(size);
}

Image drawnSmallerBy(const Image& image, std::function<Image(PixelSize)> draw)
{
    ImageNode node = *image.node();
    node.smaller = std::move(draw);
    return makeImage(std::move(node));
}

PixelRect Shrinking::of(const PixelRect& part) const
{
    const auto shrunk = [](int position, double factor) {
        return static_cast<int>(std::lround(position * factor));
    };
    const int left = shrunk(part.x, across());
    const int top = shrunk(part.y, along());
    return {
        .x = left,
        .y = top,
        .width = std::max(1, shrunk(part.x + part.width, across()) - left),
        .height = std::max(1, shrunk(part.y + part.height, along()) - top)};
}

} // namespace brenvaldo::platform::graphics
