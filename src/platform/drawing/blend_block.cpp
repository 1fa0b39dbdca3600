// SPDX-License-Identifier: GPL-3.0-or-later
#include "blend_block.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace brenvaldo::platform::drawing {

namespace {

using Plane = BlendBlock::Plane;
using Colors = BlendBlock::Colors;

constexpr float leastDivisor = std::numeric_limits<float>::min();

float multiplied(float below, float above) { return below * above; }

float overlaid(float below, float above)
{
    return below <= 0.5F ? 2 * below * above : 1 - 2 * (1 - below) * (1 - above);
}

float darker(float below, float above) { return std::min(below, above); }

float lighter(float below, float above) { return std::max(below, above); }

float dodged(float below, float above)
{
    return std::min(1.0F, below / std::max(1 - above, leastDivisor));
}

float burned(float below, float above)
{
    return 1 - std::min(1.0F, (1 - below) / std::max(above, leastDivisor));
}

float softlyLit(float below, float above)
{
    const float curve = below <= 0.25F ? ((16 * below - 12) * below + 4) * below : std::sqrt(below);
    const float dark = below - (1 - 2 * above) * below * (1 - below);
    const float light = below + (2 * above - 1) * (curve - below);
    return above <= 0.5F ? dark : light;
}

float differing(float below, float above) { return std::abs(below - above); }

float excluding(float below, float above) { return below + above - 2 * below * above; }

template <class Mix>
void mixEach(
    const Colors& below, const Colors& above, Colors& mixed, const BlockExtent& extent, Mix mix
)
{
    for (int color = 0; color < extent.colors; ++color) {
        const auto plane = static_cast<std::size_t>(color);
        const float* lower = below[plane].data();
        const float* upper = above[plane].data();
        float* out = mixed[plane].data();
        for (int i = 0; i < extent.count; ++i)
            out[i] = mix(lower[i], upper[i]);
    }
}

float luminosity(float red, float green, float blue)
{
    return 0.3F * red + 0.59F * green + 0.11F * blue;
}

/// The hues of one picture with the luminosity of another.
void mixHues(const Colors& hues, const Colors& lights, Colors& mixed, int count)
{
    for (std::size_t i = 0; i < static_cast<std::size_t>(count); ++i) {
        const float light = luminosity(lights[0][i], lights[1][i], lights[2][i]);
        const float shift = light - luminosity(hues[0][i], hues[1][i], hues[2][i]);
        const float red = hues[0][i] + shift;
        const float green = hues[1][i] + shift;
        const float blue = hues[2][i] + shift;
        const float least = std::min(red, std::min(green, blue));
        const float most = std::max(red, std::max(green, blue));
        const float raise = least < 0 ? light / (light - least) : 1.0F;
        const float lower = most > 1 ? (1 - light) / (most - light) : 1.0F;
        const float saturation = raise * lower;
        mixed[0][i] = light + (red - light) * saturation;
        mixed[1][i] = light + (green - light) * saturation;
        mixed[2][i] = light + (blue - light) * saturation;
    }
}

void mixVectors(const Colors& hues, const Colors& lights, Colors& mixed, const BlockExtent& extent)
{
    if (extent.colors >= 3)
        mixHues(hues, lights, mixed, extent.count);
    if (extent.colors != 3) {
        const auto last = static_cast<std::size_t>(extent.colors - 1); // grey, or black ink
        std::copy_n(lights[last].begin(), extent.count, mixed[last].begin());
    }
}

/// What opaque colours of the two give; not for the modes that add.
void mixColors(
    BlendMode mode,
    const Colors& below,
    const Colors& above,
    Colors& mixed,
    const BlockExtent& extent
)
{
    const auto each = [&](auto mix) { mixEach(below, above, mixed, extent, mix); };
    switch (mode) {
    case BlendMode::Multiply:
        return each([](float b, float a) { return multiplied(b, a); });
    case BlendMode::Overlay:
        return each([](float b, float a) { return overlaid(b, a); });
    case BlendMode::Darken:
        return each([](float b, float a) { return darker(b, a); });
    case BlendMode::Lighten:
        return each([](float b, float a) { return lighter(b, a); });
    case BlendMode::ColorDodge:
        return each([](float b, float a) { return dodged(b, a); });
    case BlendMode::ColorBurn:
        return each([](float b, float a) { return burned(b, a); });
    case BlendMode::SoftLight:
        return each([](float b, float a) { return softlyLit(b, a); });
    case BlendMode::Difference:
        return each([](float b, float a) { return differing(b, a); });
    case BlendMode::Exclusion:
        return each([](float b, float a) { return excluding(b, a); });
    case BlendMode::Color:
        return mixVectors(above, below, mixed, extent);
    case BlendMode::Luminosity:
        return mixVectors(below, above, mixed, extent);
    case BlendMode::Normal:
    case BlendMode::PlusDarker:
    case BlendMode::PlusLighter:
        return each([](float, float a) { return a; });
    }
}

/// Composites each colour: `premultiplied(below, alphaBelow, above, alphaAbove, mixed)`, divided by
/// `alphaOf(alphaBelow, alphaAbove)`, which becomes the photo's alpha.
template <class Alpha, class Premultiplied>
void composite(
    const BlendBlock& layer,
    BlendBlock& photo,
    const Colors& mixed,
    const BlockExtent& extent,
    Alpha alphaOf,
    Premultiplied premultiplied
)
{
    const float* above = layer.alpha.data();
    float* below = photo.alpha.data();
    for (int color = 0; color < extent.colors; ++color) {
        const auto plane = static_cast<std::size_t>(color);
        const float* upper = layer.colors[plane].data();
        const float* mix = mixed[plane].data();
        float* lower = photo.colors[plane].data();
        for (int i = 0; i < extent.count; ++i) {
            const float alpha = std::max(alphaOf(below[i], above[i]), leastDivisor);
            lower[i] = premultiplied(lower[i], below[i], upper[i], above[i], mix[i]) / alpha;
        }
    }
    for (int i = 0; i < extent.count; ++i)
        below[i] = alphaOf(below[i], above[i]);
}

float unitedAlpha(float below, float above) { return above + below - above * below; }

float summedAlpha(float below, float above) { return std::min(1.0F, above + below); }

void compositeMixed(
    BlendMode mode, const BlendBlock& layer, BlendBlock& photo, const BlockExtent& extent
)
{
    Colors mixed;
    mixColors(mode, photo.colors, layer.colors, mixed, extent);
    composite(
        layer,
        photo,
        mixed,
        extent,
        [](float below, float above) { return unitedAlpha(below, above); },
        [](float lower, float below, float upper, float above, float mix) {
            return (1 - below) * above * upper + (1 - above) * below * lower + above * below * mix;
        }
    );
}

template <class Premultiplied>
void compositeSum(
    const BlendBlock& layer,
    BlendBlock& photo,
    const BlockExtent& extent,
    Premultiplied premultiplied
)
{
    composite(
        layer,
        photo,
        layer.colors,
        extent,
        [](float below, float above) { return summedAlpha(below, above); },
        premultiplied
    );
}

} // namespace

void blend(BlendMode mode, const BlendBlock& layer, BlendBlock& photo, const BlockExtent& extent)
{
    switch (mode) {
    case BlendMode::PlusLighter:
        return compositeSum(
            layer,
            photo,
            extent,
            [](float lower, float below, float upper, float above, float) {
                return std::min(1.0F, upper * above + lower * below);
            }
        );
    case BlendMode::PlusDarker:
        return compositeSum(
            layer,
            photo,
            extent,
            [](float lower, float below, float upper, float above, float) {
                const float missing = above * (1 - upper) + below * (1 - lower);
                return std::max(0.0F, summedAlpha(below, above) - missing);
            }
        );
    default:
        return compositeMixed(mode, layer, photo, extent);
    }
}

} // namespace brenvaldo::platform::drawing
