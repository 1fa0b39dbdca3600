// SPDX-License-Identifier: GPL-3.0-or-later
#include "sample_conversion.h"

#include "region_kernel.h"

#include <limits>

namespace brenvaldo::platform::graphics {

namespace {

template <typename Sample>
vips::VImage flattened(const vips::VImage& pixels, unsigned white)
{
    constexpr unsigned full = std::numeric_limits<Sample>::max();
    const int bands = pixels.bands() - 1;
    const KernelOutput output = {bands, pixels.format(), pixels.interpretation()};
    return mapRows(std::array{pixels}, output, [bands, white](const KernelRow<1>& row) {
        const auto* in = row.input<Sample>(0);
        auto* out = row.out<Sample>();
        for (int i = 0; i < row.count; ++i, in += bands + 1, out += bands) {
            const unsigned alpha = in[bands];
            for (int band = 0; band < bands; ++band)
                out[band] = static_cast<Sample>(
                    (in[band] * alpha + white * (full - alpha) + full / 2) / full
                );
        }
    });
}

} // namespace

ImageNode withBytes(const ImageNode& node)
{
    if (node.pixels.format() == VIPS_FORMAT_UCHAR)
        return node;
    const int bands = node.pixels.bands();
    const KernelOutput output
        = {bands, VIPS_FORMAT_UCHAR, interpretationOf(node.colorModel, VIPS_FORMAT_UCHAR)};
    return node
        .withPixels(mapRows(std::array{node.pixels}, output, [bands](const KernelRow<1>& row) {
            const auto* in = row.input<quint16>(0);
            auto* out = row.out<quint8>();
            for (int i = 0; i < row.count * bands; ++i)
                out[i] = static_cast<quint8>((in[i] * 255U + 32767U) / 65535U);
        }));
}

ImageNode flattenedOnWhite(const ImageNode& node)
{
    if (!node.hasAlpha)
        return node;
    ImageNode flat = node;
    flat.hasAlpha = false;
    const bool isInk = node.colorModel == ColorModel::Cmyk; // no ink is white
    flat.pixels = node.pixels.format() == VIPS_FORMAT_USHORT
        ? flattened<quint16>(node.pixels, isInk ? 0 : std::numeric_limits<quint16>::max())
        : flattened<quint8>(node.pixels, isInk ? 0 : std::numeric_limits<quint8>::max());
    return flat;
}

} // namespace brenvaldo::platform::graphics
