// SPDX-License-Identifier: GPL-3.0-or-later
#include "canvas.h"

#include <platform/graphics/color_profile.h>
#include <platform/graphics/image_node.h>
#include <platform/graphics/region_kernel.h>

#include <cstring>
#include <limits>

namespace brenvaldo::platform::drawing {

using graphics::Image;
using graphics::KernelRow;

namespace {

template <typename Sample>
constexpr quint32 full = std::numeric_limits<Sample>::max();

/// Rounded quotient of a product of two samples by the largest sample.
template <typename Sample>
constexpr quint32 scaledBy(quint32 sample, quint32 weight)
{
    return (sample * weight + full<Sample> / 2) / full<Sample>;
}

template <typename Sample>
void layOverOpaque(const KernelRow<2>& row, int bands)
{
    const auto* base = row.input<Sample>(0);
    const auto* layer = row.input<Sample>(1);
    auto* out = row.out<Sample>();
    for (int i = 0; i < row.count; ++i, base += bands, layer += bands + 1, out += bands) {
        const quint32 alpha = layer[bands];
        for (int band = 0; band < bands; ++band)
            out[band] = static_cast<
                Sample>((layer[band] * alpha + base[band] * (full<Sample> - alpha) + full<Sample> / 2) / full<Sample>);
    }
}

template <typename Sample>
void layOverTransparent(const KernelRow<2>& row, int bands)
{
    const auto* base = row.input<Sample>(0);
    const auto* layer = row.input<Sample>(1);
    auto* out = row.out<Sample>();
    const int stride = bands + 1;
    for (int i = 0; i < row.count; ++i, base += stride, layer += stride, out += stride) {
        const quint32 above = layer[bands];
        const quint32 below = scaledBy<Sample>(base[bands], full<Sample> - above);
        const quint32 alpha = above + below;
        for (int band = 0; band < bands; ++band) {
            const quint64 sum = quint64{layer[band]} * above + quint64{base[band]} * below;
            out[band] = alpha == 0 ? Sample{0} : static_cast<Sample>((sum + alpha / 2) / alpha);
        }
        out[bands] = static_cast<Sample>(alpha);
    }
}

template <typename Sample>
vips::VImage composed(const graphics::ImageNode& base, const vips::VImage& layer)
{
    const int bands = graphics::colorBands(base.colorModel);
    const graphics::KernelOutput output
        = {base.pixels.bands(), base.pixels.format(), base.pixels.interpretation()};
    const std::array inputs = {base.pixels, layer};
    if (base.hasAlpha)
        return graphics::mapRows(inputs, output, [bands](const KernelRow<2>& row) {
            layOverTransparent<Sample>(row, bands);
        });
    return graphics::mapRows(inputs, output, [bands](const KernelRow<2>& row) {
        layOverOpaque<Sample>(row, bands);
    });
}

} // namespace

Image over(const Image& base, const Image& overlay)
{
    Q_ASSERT(base.pixelSize() == overlay.pixelSize());
    Q_ASSERT(overlay.hasAlpha() && overlay.colorModel() == graphics::ColorModel::Rgb);
    const graphics::ImageNode& node = *base.node();
    return graphics::builtImage(node, base.pixelSize(), [&] {
        const vips::VImage layer = graphics::srgbLayerInColorsOf(overlay.node()->pixels, node);
        return node.withPixels(
            node.pixels.format() == VIPS_FORMAT_USHORT ? composed<quint16>(node, layer)
                                                       : composed<quint8>(node, layer)
        );
    });
}

} // namespace brenvaldo::platform::drawing
