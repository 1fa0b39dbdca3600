// SPDX-License-Identifier: GPL-3.0-or-later
#include "blur.h"

#include "line_blur.h"
#include "pixel_node.h"

#include <platform/graphics/deferred_pixels.h>
#include <platform/graphics/evaluation.h>

#include <algorithm>
#include <cmath>

namespace brenvaldo::platform::filters {

namespace {

constexpr double smallestSigma = 0.16; // what is below can't be seen

/// A wide blur of a shrunken picture is as smooth as one of the picture itself.
int shrinkFor(double sigma)
{
    constexpr double enoughSigma = 8;
    return std::max(1, static_cast<int>(sigma / enoughSigma));
}

/// Sigma that is left to do in the shrunken picture: shrinking and enlarging blur, too.
double remainingSigma(double sigma, int shrink)
{
    const double variance = sigma * sigma - (shrink * shrink - 1) / 12.0 - shrink * shrink / 6.0;
    return std::sqrt(variance) / shrink;
}

vips::VImage continuedBeyondEdges(const vips::VImage& pixels, int left, int right, int bottom)
{
    return pixels.embed(
        left,
        left,
        left + pixels.width() + right,
        left + pixels.height() + bottom,
        vips::VImage::option()->set("extend", VIPS_EXTEND_COPY)
    );
}

/// `pixels` in memory once the first of them is needed: the lines of a small picture are asked for
/// again and again.
vips::VImage kept(const vips::VImage& pixels)
{
    return graphics::deferredPixels(graphics::layoutOf(pixels), [pixels] {
        return graphics::copiedToMemory(pixels);
    });
}

/// The blur of a picture shrunken by `shrink`, at its old size again.
vips::VImage widelyBlurred(const vips::VImage& pixels, double sigma, int shrink)
{
    const int margin = shrink * static_cast<int>(std::ceil(3 * sigma / shrink));
    const auto beyond = [&](int side) { return margin + (shrink - side % shrink) % shrink; };
    const vips::VImage wide
        = continuedBeyondEdges(pixels, margin, beyond(pixels.width()), beyond(pixels.height()));
    const vips::VImage small = kept(wide.shrink(shrink, shrink));
    return kept(lineBlurred(small, remainingSigma(sigma, shrink)))
        .resize(shrink, vips::VImage::option()->set("kernel", VIPS_KERNEL_LINEAR))
        .extract_area(margin, margin, pixels.width(), pixels.height());
}

vips::VImage blurredPixels(const vips::VImage& pixels, double sigma)
{
    const int shrink = shrinkFor(sigma);
    return shrink > 1 ? widelyBlurred(pixels, sigma, shrink) : lineBlurred(pixels, sigma);
}

BRENVALDO_VECTOR_LOOP void
sharpen(const PixelBlock& in, const PixelBlock& blurred, float intensity, PixelBlock& out)
{
    const auto sharpened
        = [intensity](float level, float mean) { return level + intensity * (level - mean); };
    for (std::size_t i = 0; i < PixelBlock::capacity; ++i) {
        out.red[i] = sharpened(in.red[i], blurred.red[i]);
        out.green[i] = sharpened(in.green[i], blurred.green[i]);
        out.blue[i] = sharpened(in.blue[i], blurred.blue[i]);
        out.alpha[i] = in.alpha[i];
    }
}

} // namespace

FilterImage blurred(const FilterImage& image, double radius)
{
    if (!(radius >= smallestSigma))
        return image;
    const vips::VImage linear = floatPixels(readInAnyOrder(image), Space::Linear);
    return imageOf(image, {.space = Space::Linear, .pixels = blurredPixels(linear, radius)});
}

FilterImage sharpened(const FilterImage& image, double radius, double intensity)
{
    const FilterImage photo = readInAnyOrder(image);
    const FilterImage mean = blurred(photo, radius);
    return imageOf(
        photo,
        {.space = Space::Linear,
         .inputs = {inSpace(photo.node(), Space::Linear), inSpace(mean.node(), Space::Linear)},
         .compute = [strength = static_cast<float>(intensity)](
                        const Blocks& inputs, const BlockPlace& /*place*/, PixelBlock& out
                    ) { sharpen(*inputs[0], *inputs[1], strength, out); }}
    );
}

} // namespace brenvaldo::platform::filters
