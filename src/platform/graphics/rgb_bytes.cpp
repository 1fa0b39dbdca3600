// SPDX-License-Identifier: GPL-3.0-or-later
#include "rgb_bytes.h"

#include "sample_conversion.h"
#include "screen_scaling.h"

namespace brenvaldo::platform::graphics {

namespace {

ImageNode rgbaNode(const ImageNode& node)
{
    constexpr double opaque = 255;
    ImageNode bytes = withRgbBytes(node);
    if (!bytes.hasAlpha)
        bytes = bytes.withPixels(bytes.pixels.bandjoin(opaque));
    bytes.hasAlpha = true;
    return bytes;
}

} // namespace

Image rgbaBytes(const Image& image)
{
    const ImageNode& node = *image.node();
    return drawnSmallerBy(
        builtImage(node, image.pixelSize(), [&] { return rgbaNode(node); }),
        [image](PixelSize size) { return rgbaBytes(scaledForScreen(image, size)); }
    );
}

} // namespace brenvaldo::platform::graphics
