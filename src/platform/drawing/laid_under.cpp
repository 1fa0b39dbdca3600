// SPDX-License-Identifier: GPL-3.0-or-later
#include "laid_under.h"

#include <platform/graphics/color_profile.h>
#include <platform/graphics/image_node.h>
#include <platform/graphics/region_kernel.h>

#include <array>
#include <limits>

namespace brenvaldo::platform::drawing {

using graphics::Image;
using graphics::ImageNode;
using graphics::KernelRow;

namespace {

/// A pixel of the photo above one of the layer, both with alpha behind `colors` samples.
template <class Sample>
void layPixel(const Sample* photo, const Sample* layer, int colors, Sample* out)
{
    constexpr quint64 full = std::numeric_limits<Sample>::max();
    const quint64 above = photo[colors] * full;
    const quint64 below = layer[colors] * (full - photo[colors]);
    const quint64 alpha = above + below;
    for (int color = 0; color < colors; ++color) {
        const quint64 sum = photo[color] * above + layer[color] * below;
        out[color] = alpha == 0 ? photo[color] : static_cast<Sample>((sum + alpha / 2) / alpha);
    }
    out[colors] = static_cast<Sample>((alpha + full / 2) / full);
}

template <class Sample>
vips::VImage laidUnder(const ImageNode& photo, const vips::VImage& layer)
{
    const vips::VImage& pixels = photo.pixels;
    return graphics::mapRows(
        std::array{pixels, layer},
        {.bands = pixels.bands(),
         .format = pixels.format(),
         .interpretation = pixels.interpretation()},
        [bands = pixels.bands()](const KernelRow<2>& row) {
            const auto* above = row.input<Sample>(0);
            const auto* below = row.input<Sample>(1);
            auto* out = row.out<Sample>();
            for (int i = 0; i < row.count * bands; i += bands)
                layPixel(above + i, below + i, bands - 1, out + i);
        }
    );
}

} // namespace

Image withLayerBelow(const Image& photo, const Image& layer)
{
    Q_ASSERT(photo.hasAlpha() && layer.pixelSize() == photo.pixelSize());
    const ImageNode& node = *photo.node();
    return graphics::builtImage(node, photo.pixelSize(), [&] {
        const vips::VImage colors = graphics::srgbLayerInColorsOf(layer.node()->pixels, node);
        return node.withPixels(
            node.pixels.format() == VIPS_FORMAT_USHORT ? laidUnder<quint16>(node, colors)
                                                       : laidUnder<quint8>(node, colors)
        );
    });
}

} // namespace brenvaldo::platform::drawing
