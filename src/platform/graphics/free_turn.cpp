// SPDX-License-Identifier: GPL-3.0-or-later
#include "free_turn.h"

#include "alpha_weighting.h"
#include "deferred_pixels.h"
#include "image_node.h"

#include <cmath>
#include <numbers>

namespace brenvaldo::platform::graphics {

namespace {

vips::VImage turnedPixels(const vips::VImage& pixels, const FreeTurn& turn)
{
    const double radians = turn.degrees * std::numbers::pi / 180;
    const double cosine = std::cos(radians);
    const double sine = std::sin(radians);
    // The engine's coordinates name the middle of a pixel, ours its corner: half a pixel apart.
    return pixels.affine(
        {cosine, sine, -sine, cosine},
        vips::VImage::option()
            ->set("interpolate", vips::VInterpolate::new_from_name("bicubic"))
            ->set("oarea", std::vector<int>{0, 0, turn.canvas.width, turn.canvas.height})
            ->set("idx", 0.5 - pixels.width() / 2.0)
            ->set("idy", 0.5 - pixels.height() / 2.0)
            ->set("odx", turn.centre.x - 0.5)
            ->set("ody", turn.centre.y - 0.5)
            ->set("extend", VIPS_EXTEND_BACKGROUND)
            ->set("premultiplied", true)
    );
}

double opaqueSample(const vips::VImage& pixels)
{
    return pixels.format() == VIPS_FORMAT_USHORT ? 65535 : 255;
}

ImageNode turnedNode(ImageNode node, const FreeTurn& turn)
{
    node.pixels = randomAccess(node.pixels);
    if (!node.hasAlpha && turn.corners == FreeCorners::Transparent) {
        node.pixels = node.pixels.bandjoin(opaqueSample(node.pixels));
        node.hasAlpha = true;
    }
    if (!node.hasAlpha)
        return node.withPixels(turnedPixels(node.pixels, turn));
    const vips::VImage turned = turnedPixels(premultipliedPixels(node.pixels), turn);
    return node.withPixels(straightPixels(turned, node.pixels.format()));
}

} // namespace

Image freelyTurned(const Image& image, const FreeTurn& turn)
{
    const ImageNode& node = *image.node();
    return builtImage(node, turn.canvas, [&] { return turnedNode(node, turn); });
}

} // namespace brenvaldo::platform::graphics
