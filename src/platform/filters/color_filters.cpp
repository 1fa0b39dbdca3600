// SPDX-License-Identifier: GPL-3.0-or-later
#include "color_filters.h"

#include "pixel_node.h"
#include "transfer_curve.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace brenvaldo::platform::filters {

namespace {

float clamped(float level) { return std::min(std::max(level, 0.0F), 1.0F); }

float mix(float from, float to, float share) { return from + share * (to - from); }

BRENVALDO_VECTOR_LOOP void invert(const PixelBlock& in, PixelBlock& out)
{
    for (std::size_t i = 0; i < PixelBlock::capacity; ++i) {
        out.red[i] = 1 - in.red[i];
        out.green[i] = 1 - in.green[i];
        out.blue[i] = 1 - in.blue[i];
    }
}

struct Shade
{
    float red;
    float green;
    float blue;
    float share;
};

BRENVALDO_VECTOR_LOOP void shade(const PixelBlock& in, PixelBlock& out, const Shade& shade)
{
    for (std::size_t i = 0; i < PixelBlock::capacity; ++i) {
        const float gray = Luminance::of(in.red[i], in.green[i], in.blue[i]);
        out.red[i] = mix(in.red[i], gray * shade.red, shade.share);
        out.green[i] = mix(in.green[i], gray * shade.green, shade.share);
        out.blue[i] = mix(in.blue[i], gray * shade.blue, shade.share);
    }
}

/// Steps between black and white.
BRENVALDO_VECTOR_LOOP void
posterize(const PixelBlock::Plane& in, PixelBlock::Plane& out, float steps)
{
    for (std::size_t i = 0; i < PixelBlock::capacity; ++i)
        out[i] = std::floor(in[i] * steps + 0.5F) / steps;
}

using Matrix = std::array<std::array<float, 3>, 3>;

constexpr Matrix sepia = {{
    {0.393F, 0.769F, 0.189F},
    {0.349F, 0.686F, 0.168F},
    {0.272F, 0.534F, 0.131F},
}};

BRENVALDO_VECTOR_LOOP void tone(const PixelBlock& in, PixelBlock& out, float share)
{
    for (std::size_t i = 0; i < PixelBlock::capacity; ++i) {
        const float red = in.red[i];
        const float green = in.green[i];
        const float blue = in.blue[i];
        const auto toned = [&](std::size_t row) {
            return sepia[row][0] * red + sepia[row][1] * green + sepia[row][2] * blue;
        };
        out.red[i] = clamped(mix(red, toned(0), share));
        out.green[i] = clamped(mix(green, toned(1), share));
        out.blue[i] = clamped(mix(blue, toned(2), share));
    }
}

struct Adjustment
{
    float saturation;
    float brightness;
    float contrast;

    [[nodiscard]] float operator()(float level, float gray) const
    {
        constexpr float middle = 0.5F;
        return (mix(gray, level, saturation) + brightness - middle) * contrast + middle;
    }
};

BRENVALDO_VECTOR_LOOP void adjust(const PixelBlock& in, PixelBlock& out, const Adjustment& adjusted)
{
    for (std::size_t i = 0; i < PixelBlock::capacity; ++i) {
        const float gray = Luminance::of(in.red[i], in.green[i], in.blue[i]);
        out.red[i] = adjusted(in.red[i], gray);
        out.green[i] = adjusted(in.green[i], gray);
        out.blue[i] = adjusted(in.blue[i], gray);
    }
}

} // namespace

FilterImage inverted(const FilterImage& image)
{
    return mapped(
        image,
        Space::Encoded,
        [](const PixelBlock& in, const BlockPlace& /*place*/, PixelBlock& out) { invert(in, out); }
    );
}

FilterImage monochrome(const FilterImage& image, const graphics::Color& color, double intensity)
{
    const Shade values
        = {.red = static_cast<float>(linearOf(color.red)),
           .green = static_cast<float>(linearOf(color.green)),
           .blue = static_cast<float>(linearOf(color.blue)),
           .share = static_cast<float>(intensity)};
    return mapped(
        image,
        Space::Linear,
        [values](const PixelBlock& in, const BlockPlace& /*place*/, PixelBlock& out) {
            shade(in, out, values);
        }
    );
}

FilterImage posterized(const FilterImage& image, double levels)
{
    const auto steps = static_cast<float>(std::max(2.0, std::round(levels)) - 1);
    return mapped(
        image,
        Space::Encoded,
        [steps](const PixelBlock& in, const BlockPlace& /*place*/, PixelBlock& out) {
            posterize(in.red, out.red, steps);
            posterize(in.green, out.green, steps);
            posterize(in.blue, out.blue, steps);
        }
    );
}

FilterImage sepiaToned(const FilterImage& image, double intensity)
{
    const auto share = static_cast<float>(intensity);
    return mapped(
        image,
        Space::Encoded,
        [share](const PixelBlock& in, const BlockPlace& /*place*/, PixelBlock& out) {
            tone(in, out, share);
        }
    );
}

FilterImage withColorControls(const FilterImage& image, const ColorControls& controls)
{
    const Adjustment values
        = {.saturation = static_cast<float>(controls.saturation),
           .brightness = static_cast<float>(controls.brightness),
           .contrast = static_cast<float>(controls.contrast)};
    return mapped(
        image,
        Space::Linear,
        [values](const PixelBlock& in, const BlockPlace& /*place*/, PixelBlock& out) {
            adjust(in, out, values);
        }
    );
}

} // namespace brenvaldo::platform::filters
