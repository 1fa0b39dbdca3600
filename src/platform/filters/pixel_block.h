// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

#if defined(__GNUC__) && !defined(__clang__) && defined(__x86_64__)                                \
    && !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
/// A loop over the samples of a block, compiled for wider vectors, too, which the processor
/// chooses.
#define BRENVALDO_BLOCK_LOOP                                                                       \
    __attribute__((target_clones("arch=x86-64-v3", "default"), optimize("O3")))
#else
#define BRENVALDO_BLOCK_LOOP
#endif

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
