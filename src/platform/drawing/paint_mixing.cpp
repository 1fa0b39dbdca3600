// SPDX-License-Identifier: GPL-3.0-or-later
#include "paint_mixing.h"

#include <algorithm>

namespace brenvaldo::platform::drawing {

namespace {

float darker(float below, float above) { return std::min(below, above); }
float lighter(float below, float above) { return std::max(below, above); }
float multiplied(float below, float above) { return below * above; }

float overlaid(float below, float above)
{
    return below <= 0.5F ? 2 * below * above : 1 - 2 * (1 - below) * (1 - above);
}

template <float (*mix)(float, float)>
LightSamples mixedEach(const LightSamples& below, const LightSamples& above, int count)
{
    LightSamples mixed = {};
    for (std::size_t i = 0; i < static_cast<std::size_t>(count); ++i)
        mixed[i] = mix(below[i], above[i]);
    return mixed;
}

LightSamples normal(const LightSamples& /*below*/, const LightSamples& above, int /*count*/)
{
    return above;
}

float luminosity(const LightSamples& c) { return 0.3F * c[0] + 0.59F * c[1] + 0.11F * c[2]; }

/// Brings components that left the range back without a change of luminosity.
LightSamples clipped(LightSamples color)
{
    const float light = luminosity(color);
    const float least = std::min({color[0], color[1], color[2]});
    const float most = std::max({color[0], color[1], color[2]});
    for (std::size_t i = 0; i < 3; ++i) {
        if (least < 0)
            color[i] = light + (color[i] - light) * light / (light - least);
        if (most > 1)
            color[i] = light + (color[i] - light) * (1 - light) / (most - light);
    }
    return color;
}

/// Hue and saturation from above, luminosity from below; grey has neither, and black ink stays.
LightSamples coloured(const LightSamples& below, const LightSamples& above, int count)
{
    if (count == 1)
        return below;
    LightSamples color = above;
    const float missing = luminosity(below) - luminosity(above);
    for (std::size_t i = 0; i < 3; ++i)
        color[i] += missing;
    color[3] = below[3];
    return clipped(color);
}

} // namespace

Mixing mixingOf(ShapePaint::Blend blend)
{
    switch (blend) {
    case ShapePaint::Blend::Normal:
        return normal;
    case ShapePaint::Blend::Darken:
        return mixedEach<darker>;
    case ShapePaint::Blend::Lighten:
        return mixedEach<lighter>;
    case ShapePaint::Blend::Multiply:
        return mixedEach<multiplied>;
    case ShapePaint::Blend::Overlay:
        return mixedEach<overlaid>;
    case ShapePaint::Blend::Color:
        return coloured;
    }
    return normal;
}

} // namespace brenvaldo::platform::drawing
