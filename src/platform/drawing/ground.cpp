// SPDX-License-Identifier: GPL-3.0-or-later
#include "ground.h"

#include "photo_color.h"

#include <platform/graphics/image_node.h>
#include <platform/graphics/region_kernel.h>

#include <algorithm>
#include <array>
#include <limits>

namespace brenvaldo::platform::drawing {

using graphics::ImageNode;

namespace {

/// Fills translucent pixels up with a colour.
template <class Sample>
class OpaqueRows
{
public:
    explicit OpaqueRows(const std::vector<double>& ground)
        : m_colors(static_cast<int>(ground.size()))
    {
        std::transform(ground.begin(), ground.end(), m_ground.begin(), [](double sample) {
            return static_cast<quint32>(sample);
        });
    }

    void operator()(const graphics::KernelRow<1>& row) const
    {
        const int bands = m_colors + 1;
        const auto* in = row.template input<Sample>(0);
        auto* out = row.template out<Sample>();
        std::copy_n(in, qsizetype{row.count} * bands, out);
        for (int i = 0; i < row.count; ++i, out += bands) {
            if (out[m_colors] != full)
                fillUp(out);
        }
    }

private:
    static constexpr quint32 full = std::numeric_limits<Sample>::max();

    void fillUp(Sample* pixel) const
    {
        const quint32 alpha = pixel[m_colors];
        for (int band = 0; band < m_colors; ++band) {
            const quint32 below = m_ground[static_cast<std::size_t>(band)];
            const quint32 sum = pixel[band] * alpha + below * (full - alpha) + full / 2;
            pixel[band] = static_cast<Sample>(sum / full);
        }
        pixel[m_colors] = full;
    }

    std::array<quint32, 4> m_ground = {};
    int m_colors;
};

template <class Sample>
vips::VImage opaquePixels(const vips::VImage& pixels, const std::vector<double>& ground)
{
    const graphics::KernelOutput output
        = {pixels.bands(), pixels.format(), pixels.interpretation()};
    return graphics::mapRows(std::array{pixels}, output, OpaqueRows<Sample>(ground));
}

vips::VImage opaqueOn(const ImageNode& node, const std::vector<double>& ground)
{
    if (!node.hasAlpha)
        return node.pixels;
    return node.pixels.format() == VIPS_FORMAT_USHORT ? opaquePixels<quint16>(node.pixels, ground)
                                                      : opaquePixels<quint8>(node.pixels, ground);
}

} // namespace

graphics::Image laidOn(const Ground& ground, const graphics::Image& picture, QPoint place)
{
    const ImageNode& node = *picture.node();
    return graphics::builtImage(node, ground.size, [&] {
        const std::vector<double> color = samplesOf(ground.color, node);
        std::vector<double> background = color;
        if (node.hasAlpha)
            background.push_back(node.pixels.format() == VIPS_FORMAT_USHORT ? 65535 : 255);
        return node.withPixels(opaqueOn(node, color)
                                   .embed(
                                       place.x(),
                                       place.y(),
                                       ground.size.width,
                                       ground.size.height,
                                       vips::VImage::option()
                                           ->set("extend", VIPS_EXTEND_BACKGROUND)
                                           ->set("background", background)
                                   ));
    });
}

} // namespace brenvaldo::platform::drawing
