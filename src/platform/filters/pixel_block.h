// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/graphics/block_loop.h>
#include <platform/graphics/vector_loop.h>

#include <array>

namespace brenvaldo::platform::filters {

/// Pixels that stand side by side in a row, plane by plane: straight colours and an alpha, white
/// and opaque at 1. Colours may lie outside of 0 to 1.
struct PixelBlock
{
    static constexpr int capacity = 128;
    using Plane = std::array<float, capacity>;

    alignas(64) Plane red;
    alignas(64) Plane green;
    alignas(64) Plane blue;
    alignas(64) Plane alpha;
};

/// Weights of the components in a colour's luminance.
struct Luminance
{
    static constexpr float red = 0.2126F;
    static constexpr float green = 0.7152F;
    static constexpr float blue = 0.0722F;

    [[nodiscard]] static constexpr float of(float r, float g, float b)
    {
        return red * r + green * g + blue * b;
    }
};

} // namespace brenvaldo::platform::filters
