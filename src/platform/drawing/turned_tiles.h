// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/graphics/image.h>

#include <QPointF>

namespace brenvaldo::platform::drawing {

/// How a cell that is repeated without end is turned. Points are pixels, y runs down.
struct TileTurn
{
    double degrees = 0; ///< counter-clockwise
    graphics::PixelSize canvas = {};
    QPointF centre = {}; ///< of the turn, on the canvas
    QPointF inCell = {}; ///< what stands there, from the top left corner of a cell
};

/// The canvas full of turned copies of `cell`, a layer of 8-bit sRGB with straight alpha in memory;
/// lazily evaluated. A quarter turn about a corner of pixels moves them as they are.
[[nodiscard]] graphics::Image turnedTiles(const graphics::Image& cell, const TileTurn& turn);

} // namespace brenvaldo::platform::drawing
