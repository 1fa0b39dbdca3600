// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/drawing/paint.h>
#include <platform/graphics/image.h>

#include <QLineF>
#include <QPainterPath>

#include <optional>

namespace brenvaldo::imaging {

/// A line of a drawing that is measured from the bottom left corner of a canvas, upward.
struct DrawnLine
{
    QPainterPath path;
    double width = 0;
    platform::graphics::Color color;
    double opacity = 1; ///< from 0 to 1
    platform::drawing::BlendMode mode = platform::drawing::BlendMode::Normal;
    std::optional<QLineF> fade = {}; ///< the colour turns transparent along it
};

/// What the line covers of a canvas.
[[nodiscard]] platform::drawing::PaintedShape
shapeOf(const DrawnLine& line, platform::graphics::PixelSize canvas);

/// `canvas` with the line on it.
[[nodiscard]] platform::graphics::Image
drawn(const platform::graphics::Image& canvas, const DrawnLine& line);

} // namespace brenvaldo::imaging
