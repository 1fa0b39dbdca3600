// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "image.h"

namespace brenvaldo::platform::graphics {

/// What stands in the corners that a turned picture leaves free.
enum class FreeCorners {
    Transparent, ///< the result has alpha
    Blank ///< a fresh context's zeros: transparent with alpha, else black, paper white in CMYK
};

/// A turn of a picture about its middle by any angle.
struct FreeTurn
{
    /// Pixels from the top left corner of the canvas.
    struct Place
    {
        double x = 0;
        double y = 0;
    };

    double degrees = 0; ///< counter-clockwise
    PixelSize canvas = {}; ///< size of the result; what lies outside of it is cut off
    Place centre = {}; ///< where the middle of the picture comes to stand
    FreeCorners corners = FreeCorners::Transparent;
};

/// The picture turned at high interpolation, its edges soft.
[[nodiscard]] Image freelyTurned(const Image& image, const FreeTurn& turn);

} // namespace brenvaldo::platform::graphics
