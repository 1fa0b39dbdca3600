// SPDX-License-Identifier: GPL-3.0-or-later
#include "alpha_weighting.h"

#include "region_kernel.h"

#include <QtGlobal>

#include <algorithm>
#include <limits>

namespace brenvaldo::platform::graphics {

namespace {

template <typename Sample>
constexpr float fullAlpha = static_cast<float>(std::numeric_limits<Sample>::max());

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

} // namespace

vips::VImage premultipliedPixels(const vips::VImage& pixels)
{
    return pixels.format() == VIPS_FORMAT_USHORT ? premultiplied<quint16>(pixels)
                                                 : premultiplied<quint8>(pixels);
}

vips::VImage straightPixels(const vips::VImage& pixels, VipsBandFormat format)
{
    return format == VIPS_FORMAT_USHORT ? straightened<quint16>(pixels, format)
                                        : straightened<quint8>(pixels, format);
}

} // namespace brenvaldo::platform::graphics
