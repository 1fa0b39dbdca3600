// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/graphics/image.h>

#include <QPainterPath>
#include <QPoint>

namespace brenvaldo::platform::drawing {

/// A part of a transparent canvas that a picture shows in.
struct Clip
{
    graphics::PixelSize canvas;
    QPainterPath shape; ///< in pixels of the canvas, from its top left corner
};

/// `picture` with its top left corner at `place` of the canvas, cut to the shape with soft edges.
/// Lazily evaluated; 8-bit sRGB with alpha and without a profile.
[[nodiscard]] graphics::Image
clipped(const graphics::Image& picture, const Clip& clip, QPoint place);

} // namespace brenvaldo::platform::drawing
