// SPDX-License-Identifier: GPL-3.0-or-later
#include "gray_levels.h"

#include "color_profile.h"
#include "region_kernel.h"
#include "sample_conversion.h"

#include <algorithm>
#include <limits>

namespace brenvaldo::platform::graphics {

namespace {

template <class Sample>
vips::VImage graysOf(const ImageNode& node, GrayLevel level)
{
    constexpr double full = std::numeric_limits<Sample>::max();
    const int bands = node.pixels.bands();
    const int colors = colorBands(node.colorModel);
    const KernelOutput output
        = {bands, node.pixels.format(), interpretationOf(node.colorModel, node.pixels.format())};
    return mapRows(
        std::array{node.pixels},
        output,
        [bands, colors, level](const KernelRow<1>& row) {
            const auto* in = row.input<Sample>(0);
            auto* out = row.out<Sample>();
            for (int i = 0; i < row.count; ++i, in += bands, out += bands) {
                std::copy_n(in, bands, out); // the alpha stays
                const int green = colors == 1 ? 0 : 1;
                const int blue = colors == 1 ? 0 : 2;
                const double gray = level(in[0] / full, in[green] / full, in[blue] / full);
                std::fill_n(out, colors, static_cast<Sample>(gray * full + 0.5));
            }
        }
    );
}

} // namespace

Image withGrayLevels(const Image& image, GrayLevel level)
{
    const ImageNode node = image.colorModel() == ColorModel::Cmyk
        ? withBytes(convertedToSrgb(*image.node()))
        : *image.node();
    return makeImage(node.withPixels(
        node.pixels.format() == VIPS_FORMAT_USHORT ? graysOf<quint16>(node, level)
                                                   : graysOf<quint8>(node, level)
    ));
}

} // namespace brenvaldo::platform::graphics
