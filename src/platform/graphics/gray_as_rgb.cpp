// SPDX-License-Identifier: GPL-3.0-or-later
#include "gray_as_rgb.h"

#include "color_profile.h"
#include "region_kernel.h"

#include <algorithm>

namespace brenvaldo::platform::graphics {

namespace {

template <class Sample>
vips::VImage tripled(const vips::VImage& pixels)
{
    const bool hasAlpha = pixels.bands() > 1;
    const VipsBandFormat format = pixels.format();
    const KernelOutput output
        = {pixels.bands() + 2, format, interpretationOf(ColorModel::Rgb, format)};
    return mapRows(std::array{pixels}, output, [hasAlpha](const KernelRow<1>& row) {
        const auto* in = row.input<Sample>(0);
        auto* out = row.out<Sample>();
        for (int i = 0; i < row.count; ++i) {
            out = std::fill_n(out, 3, *in++);
            if (hasAlpha)
                *out++ = *in++;
        }
    });
}

} // namespace

Image grayAsRgb(const Image& image)
{
    if (image.colorModel() != ColorModel::Gray)
        return image;
    return builtImage(*image.node(), image.pixelSize(), [&] {
        const ImageNode gray = convertedToSrgb(*image.node());
        ImageNode rgb = gray.withPixels(
            gray.pixels.format() == VIPS_FORMAT_USHORT ? tripled<quint16>(gray.pixels)
                                                       : tripled<quint8>(gray.pixels)
        );
        rgb.colorModel = ColorModel::Rgb;
        return rgb;
    });
}

} // namespace brenvaldo::platform::graphics
