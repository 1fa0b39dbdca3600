// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "blend_mode.h"

#include <array>

namespace brenvaldo::platform::drawing {

/// Some pixels of a row, a plane a component, from 0 to 1. Colours are straight and additive: inks
/// stand as what they leave of the white.
struct BlendBlock
{
    static constexpr int size = 256;
    static constexpr int mostColors = 4;
    using Plane = std::array<float, size>;
    using Colors = std::array<Plane, mostColors>;

    Colors colors;
    Plane alpha;
};

/// How many of a block's pixels and planes are in use.
struct BlockExtent
{
    int count = 0; ///< pixels
    int colors = 0; ///< 1 is grey, 3 red, green and blue, 4 inks with black last
};

/// Lays `layer` over `photo`.
///
/// Grey has no hue: `Color` leaves it, `Luminosity` replaces it. Black ink goes by the luminosity.
void blend(BlendMode mode, const BlendBlock& layer, BlendBlock& photo, const BlockExtent& extent);

} // namespace brenvaldo::platform::drawing
