// SPDX-License-Identifier: GPL-3.0-or-later
#include "screen_scaling.h"

#include "block_average.h"
#include "image_node.h"

#include <algorithm>

namespace brenvaldo::platform::graphics {

Image scaledForScreen(const Image& image, PixelSize size)
{
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

} // namespace brenvaldo::platform::graphics
