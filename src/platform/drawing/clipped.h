// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "paint.h"

#include <platform/graphics/image.h>

#include <QPainterPath>
#include <QPoint>

#include <optional>

namespace brenvaldo::platform::drawing {

/// A plain canvas below another one, larger than it by `margin` pixels on every side; a negative
/// margin cuts off.
struct MarginGround
{
    graphics::Color color; ///< opaque, whatever its alpha is
    int margin = 0;
};

/// A part of a transparent canvas that a picture shows in. Shapes are in pixels of the canvas, from
/// its top left corner.
struct Clip
{
    graphics::PixelSize canvas;
    QPainterPath shape;
    std::optional<PaintedShape> border = {}; ///< painted on what shows of the picture
    std::optional<MarginGround> ground = {};
};

/// `picture` with its top left corner at `place` of the canvas, cut to the shape with soft edges.
/// Lazily evaluated; 8-bit sRGB with alpha and without a profile.
///
/// With a ground both sides of it must be at least one pixel long.
[[nodiscard]] graphics::Image
clipped(const graphics::Image& picture, const Clip& clip, QPoint place);

} // namespace brenvaldo::platform::drawing
