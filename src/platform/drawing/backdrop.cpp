// SPDX-License-Identifier: GPL-3.0-or-later
#include "backdrop.h"

#include <platform/graphics/image_node.h>
#include <platform/graphics/sample_conversion.h>

#include <cmath>

namespace brenvaldo::platform::drawing {

using graphics::Color;
using graphics::Image;
using graphics::ImageNode;
using graphics::PixelSize;

namespace {

unsigned sample(double component)
{
    return static_cast<unsigned>(std::lround(std::clamp(component, 0.0, 1.0) * 255));
}

ImageNode laidNode(const ImageNode& picture, const Backdrop& backdrop, PixelSize size)
{
    const Color& color = backdrop.color;
    const std::array<unsigned, 4> samples
        = {sample(color.red), sample(color.green), sample(color.blue)};
    const ImageNode flat = graphics::flattenedOn(graphics::withRgbBytes(picture), samples);
    return flat.withPixels(flat.pixels.embed(
        backdrop.margin,
        backdrop.margin,
        size.width,
        size.height,
        vips::VImage::option()
            ->set("extend", VIPS_EXTEND_BACKGROUND)
            ->set("background", std::vector<double>(samples.begin(), samples.begin() + 3))
    ));
}

} // namespace

Image laidOn(const Backdrop& backdrop, const Image& picture)
{
    const PixelSize size = {
        .width = picture.width() + 2 * backdrop.margin,
        .height = picture.height() + 2 * backdrop.margin,
    };
    Q_ASSERT(size.isValid());
    const ImageNode& node = *picture.node();
    return graphics::builtImage(node, size, [&] { return laidNode(node, backdrop, size); });
}

} // namespace brenvaldo::platform::drawing
