// SPDX-License-Identifier: GPL-3.0-or-later
#include "rgb_bytes.h"

#include "sample_conversion.h"

namespace brenvaldo::platform::graphics {

Image rgbaBytes(const Image& image)
{
    return builtImage(*image.node(), image.pixelSize(), [&] {
        constexpr double opaque = 255;
        ImageNode bytes = withRgbBytes(*image.node());
        if (!bytes.hasAlpha)
            bytes.pixels = bytes.pixels.bandjoin(opaque);
        bytes.hasAlpha = true;
        return bytes;
    });
}

} // namespace brenvaldo::platform::graphics
