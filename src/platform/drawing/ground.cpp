// SPDX-License-Identifier: GPL-3.0-or-later
#include "ground.h"

#include "ground_rows.h"
#include "photo_color.h"

#include <platform/graphics/image_node.h>
#include <platform/graphics/region_kernel.h>
#include <platform/graphics/screen_scaling.h>

namespace brenvaldo::platform::drawing {

using graphics::ImageNode;

namespace {

template <class Sample>
vips::VImage opaquePixels(const vips::VImage& pixels, const std::vector<double>& ground)
{
    const int bands = pixels.bands();
    const graphics::KernelOutput output = {bands, pixels.format(), pixels.interpretation()};
    return graphics::mapRows(
        std::array{pixels},
        output,
        [bands, below = GroundRows<Sample>(ground)](const graphics::KernelRow<1>& row) {
            auto* out = row.template out<Sample>();
            std::copy_n(row.template input<Sample>(0), qsizetype{row.count} * bands, out);
            below.fillUp(out, row.count);
        }
    );
}

vips::VImage opaqueOn(const ImageNode& node, const std::vector<double>& ground)
{
    if (!node.hasAlpha)
        return node.pixels;
    return node.pixels.format() == VIPS_FORMAT_USHORT ? opaquePixels<quint16>(node.pixels, ground)
                                                      : opaquePixels<quint8>(node.pixels, ground);
}

ImageNode laidNode(const ImageNode& node, const Ground& ground, QPoint place)
{
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
}

graphics::Image laidSmaller(
    const Ground& ground, const graphics::Image& picture, QPoint place, graphics::PixelSize size
)
{
    const graphics::PixelRect part = graphics::Shrinking{ground.size, size}.of(
        {.x = place.x(), .y = place.y(), .width = picture.width(), .height = picture.height()}
    );
    return laidOn(
        {.size = size, .color = ground.color},
        graphics::scaledForScreen(picture, {part.width, part.height}),
        {part.x, part.y}
    );
}

} // namespace

graphics::Image laidOn(const Ground& ground, const graphics::Image& picture, QPoint place)
{
    const ImageNode& node = *picture.node();
    return graphics::drawnSmallerBy(
        graphics::builtImage(node, ground.size, [&] { return laidNode(node, ground, place); }),
        [ground, picture, place](graphics::PixelSize size) {
            return laidSmaller(ground, picture, place, size);
        }
    );
}

} // namespace brenvaldo::platform::drawing
