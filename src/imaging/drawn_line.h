// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/drawing/shape_paint.h>
#include <platform/graphics/image.h>

#include <QPainterPath>

namespace brenvaldo::imaging {

/// A line of a drawing that is measured from the bottom left corner of a canvas, upward.
struct DrawnLine
{
    QPainterPath path;
    double width = 0;
    platform::drawing::ShapePaint paint; ///< its fade is measured as the path
};

/// `canvas` with the line on it.
[[nodiscard]] platform::graphics::Image
drawn(const platform::graphics::Image& canvas, const DrawnLine& line);

} // namespace brenvaldo::imaging
