// SPDX-License-Identifier: GPL-3.0-or-later
#include "sample_conversion.h"

#include "color_profile.h"
#include "region_kernel.h"

#include <limits>

namespace brenvaldo::platform::graphics {

namespace {

/// Lays pixels of some bands and an alpha on a ground; most of them are opaque.
template <typename Sample, int Bands>
void flattenRow(const KernelRow<1>& row, const std::array<unsigned, 4>& ground)
{
    constexpr unsigned full = std::numeric_limits<Sample>::max();
    const auto* in = row.input<Sample>(0);
    auto* out = row.out<Sample>();
    for (int i = 0; i < row.count; ++i, in += Bands + 1, out += Bands) {
        const unsigned alpha = in[Bands];
        if (alpha == full) {
            for (int band = 0; band < Bands; ++band)
                out[band] = in[band];
            continue;
        }
        for (int band = 0; band < Bands; ++band)
            out[band] = static_cast<Sample>(
                (in[band] * alpha + ground[static_cast<std::size_t>(band)] * (full - alpha)
                 + full / 2)
                / full
            );
    }
}

template <typename Sample, int Bands>
vips::VImage flattened(const vips::VImage& pixels, const std::array<unsigned, 4>& ground)
{
    const KernelOutput output = {Bands, pixels.format(), pixels.interpretation()};
    return mapRows(std::array{pixels}, output, [ground](const KernelRow<1>& row) {
        flattenRow<Sample, Bands>(row, ground);
    });
}

template <typename Sample>
vips::VImage flattened(const vips::VImage& pixels, const std::array<unsigned, 4>& ground)
{
    switch (pixels.bands()) {
    case 2:
        return flattened<Sample, 1>(pixels, ground);
    case 4:
        return flattened<Sample, 3>(pixels, ground);
    default:
        return flattened<Sample, 4>(pixels, ground);
    }
}

/// No ink is white.
template <typename Sample>
constexpr std::array<unsigned, 4> whiteOf(ColorModel model)
{
    constexpr unsigned full = std::numeric_limits<Sample>::max();
    return model == ColorModel::Cmyk ? std::array<unsigned, 4>{}
                                     : std::array<unsigned, 4>{full, full, full, full};
}

template <typename Sample>
ImageNode flatNode(const ImageNode& node, const std::array<unsigned, 4>& ground)
{
    ImageNode flat = node.withPixels(flattened<Sample>(node.pixels, ground));
    flat.hasAlpha = false;
    return flat;
}

/// Grey pixels as colour ones.
vips::VImage colored(const vips::VImage& gray)
{
    const vips::VImage level = gray.extract_band(0);
    std::vector<vips::VImage> bands{level, level, level};
    if (gray.bands() > 1)
        bands.push_back(gray.extract_band(1));
    return vips::VImage::bandjoin(bands).copy(
        vips::VImage::option()->set("interpretation", VIPS_INTERPRETATION_sRGB)
    );
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
    return node.pixels.format() == VIPS_FORMAT_USHORT
        ? flatNode<quint16>(node, whiteOf<quint16>(node.colorModel))
        : flatNode<quint8>(node, whiteOf<quint8>(node.colorModel));
}

ImageNode flattenedOn(const ImageNode& node, const std::array<unsigned, 4>& ground)
{
    return node.hasAlpha ? flatNode<quint8>(node, ground) : node;
}

ImageNode withRgbBytes(const ImageNode& node)
{
    ImageNode bytes = withBytes(convertedToSrgb(node));
    if (bytes.colorModel != ColorModel::Gray)
        return bytes;
    bytes = bytes.withPixels(colored(bytes.pixels));
    bytes.colorModel = ColorModel::Rgb;
    return bytes;
}

} // namespace brenvaldo::platform::graphics
