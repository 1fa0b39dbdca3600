// SPDX-License-Identifier: GPL-3.0-or-later
#include "free_turn.h"

#include "alpha_weighting.h"
#include "deferred_pixels.h"
#include "image_node.h"
#include "screen_scaling.h"

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

Image turnedSmaller(const Image& image, FreeTurn turn, PixelSize canvas)
{
    const Shrinking shrinking = {turn.canvas, canvas};
    const PixelRect photo
        = shrinking.of({.x = 0, .y = 0, .width = image.width(), .height = image.height()});
    turn.canvas = canvas;
    turn.centre = {.x = turn.centre.x * shrinking.across(), .y = turn.centre.y * shrinking.along()};
    return freelyTurned(scaledForScreen(image, {photo.width, photo.height}), turn);
}

} // namespace

Image freelyTurned(const Image& image, const FreeTurn& turn)
{
    const ImageNode& node = *image.node();
    const Image turned = builtImage(node, turn.canvas, [&] { return turnedNode(node, turn); });
    if (isSequential(node.pixels))
        return turned; // it can be drawn again, what it was made of can't
    return drawnSmallerBy(turned, [image, turn](PixelSize size) {
        return turnedSmaller(image, turn, size);
    });
}

} // namespace brenvaldo::platform::graphics
