// SPDX-License-Identifier: GPL-3.0-or-later
#include "blending.h"

#include "blend_rows.h"

#include <platform/graphics/color_profile.h>

namespace brenvaldo::platform::drawing {

using graphics::Image;
using graphics::ImageNode;
using graphics::KernelRow;

namespace {

/// `layer` has the colours and the depth of the photo, an alpha and the photo's size.
template <class Sample>
ImageNode laidOver(
    const ImageNode& photo, const ImageNode& layer, const QRect& area, const Blending& blending
)
{
    const BlockSamples<Sample> samples(layer);
    const auto opacity = static_cast<float>(blending.opacity);
    return blendedNode<Sample>(
        photo,
        std::array{photo.pixels, layer.pixels},
        area,
        blending.mode,
        [samples, opacity](const KernelRow<2>& row, int x, int count, BlendBlock& block) {
            const auto* pixels = row.input<Sample>(1) + qsizetype{x - row.x} * samples.bands();
            samples.load(pixels, count, block);
            for (std::size_t i = 0; i < static_cast<std::size_t>(count); ++i)
                block.alpha[i] *= opacity;
        }
    );
}

/// The overlay in the photo's colours, on a transparent ground as large as the photo.
ImageNode layerFor(const ImageNode& photo, const ImageNode& overlay, QPoint topLeft)
{
    const vips::VImage colors = graphics::srgbLayerInColorsOf(overlay.pixels, photo);
    ImageNode layer = photo.withPixels(
        colors.embed(topLeft.x(), topLeft.y(), photo.pixels.width(), photo.pixels.height())
    );
    layer.hasAlpha = true;
    return layer;
}

} // namespace

Image blended(const Image& photo, const Image& overlay, const Blending& blending)
{
    Q_ASSERT(overlay.hasAlpha() && overlay.colorModel() == graphics::ColorModel::Rgb);
    const QRect area
        = QRect(0, 0, photo.width(), photo.height())
              .intersected(QRect(blending.topLeft, QSize(overlay.width(), overlay.height())));
    if (area.isEmpty())
        return photo;
    const ImageNode& node = *photo.node();
    return graphics::builtImage(node, photo.pixelSize(), [&] {
        const ImageNode layer = layerFor(node, *overlay.node(), blending.topLeft);
        return node.pixels.format() == VIPS_FORMAT_USHORT
            ? laidOver<quint16>(node, layer, area, blending)
            : laidOver<quint8>(node, layer, area, blending);
    });
}

} // namespace brenvaldo::platform::drawing
