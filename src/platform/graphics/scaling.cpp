// SPDX-License-Identifier: GPL-3.0-or-later
#include "image.h"
#include "image_node.h"
#include "region_kernel.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace brenvaldo::platform {

namespace {

template <typename Sample>
constexpr float fullAlpha = static_cast<float>(std::numeric_limits<Sample>::max());

/// Samples weighted with their alpha, as floats, so that transparent pixels lend no colour to
/// their neighbours.
template <typename Sample>
vips::VImage premultiplied(const vips::VImage& pixels)
{
    const int bands = pixels.bands();
    const KernelOutput output = {bands, VIPS_FORMAT_FLOAT, pixels.interpretation()};
    return mapRows(std::array{pixels}, output, [bands](const KernelRow<1>& row) {
        const auto* in = row.input<Sample>(0);
        auto* out = row.out<float>();
        for (int i = 0; i < row.count; ++i, in += bands, out += bands) {
            const float alpha = in[bands - 1];
            const float weight = alpha / fullAlpha<Sample>;
            for (int band = 0; band < bands - 1; ++band)
                out[band] = static_cast<float>(in[band]) * weight;
            out[bands - 1] = alpha;
        }
    });
}

template <typename Sample>
vips::VImage straightened(const vips::VImage& pixels, VipsBandFormat format)
{
    const int bands = pixels.bands();
    const KernelOutput output = {bands, format, pixels.interpretation()};
    return mapRows(std::array{pixels}, output, [bands](const KernelRow<1>& row) {
        const auto* in = row.input<float>(0);
        auto* out = row.out<Sample>();
        for (int i = 0; i < row.count; ++i, in += bands, out += bands) {
            const float alpha = std::clamp(in[bands - 1], 0.0F, fullAlpha<Sample>);
            const float weight = alpha > 0 ? fullAlpha<Sample> / alpha : 0.0F;
            for (int band = 0; band < bands - 1; ++band)
                out[band] = static_cast<Sample>(
                    std::clamp(in[band] * weight, 0.0F, fullAlpha<Sample>) + 0.5F
                );
            out[bands - 1] = static_cast<Sample>(alpha + 0.5F);
        }
    });
}

/// `pixels` cut or continued at the right and bottom edge to exactly `size`.
vips::VImage trimmedTo(const vips::VImage& pixels, PixelSize size)
{
    if (pixels.width() == size.width && pixels.height() == size.height)
        return pixels;
    return pixels.embed(
        0, 0, size.width, size.height, vips::VImage::option()->set("extend", VIPS_EXTEND_COPY)
    );
}

vips::VImage resampled(const vips::VImage& pixels, PixelSize size)
{
    const double horizontal = static_cast<double>(size.width) / pixels.width();
    const double vertical = static_cast<double>(size.height) / pixels.height();
    const vips::VImage scaled = pixels.resize(
        horizontal,
        vips::VImage::option()->set("vscale", vertical)->set("kernel", VIPS_KERNEL_LANCZOS3)
    );
    return trimmedTo(scaled, size);
}

} // namespace

Image Image::scaledTo(PixelSize size) const
{
    Q_ASSERT(size.isValid());
    if (size == pixelSize())
        return *this;
    const vips::VImage& pixels = m_node->pixels;
    if (!hasAlpha())
        return makeImage(m_node->withPixels(resampled(pixels, size)));
    if (pixels.format() == VIPS_FORMAT_USHORT) {
        const vips::VImage scaled = resampled(premultiplied<quint16>(pixels), size);
        return makeImage(m_node->withPixels(straightened<quint16>(scaled, VIPS_FORMAT_USHORT)));
    }
    const vips::VImage scaled = resampled(premultiplied<quint8>(pixels), size);
    return makeImage(m_node->withPixels(straightened<quint8>(scaled, VIPS_FORMAT_UCHAR)));
}

} // namespace brenvaldo::platform
