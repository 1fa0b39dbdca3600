// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/graphics/color.h>
#include <platform/graphics/image.h>

#include <QRectF>

namespace brenvaldo::platform::drawing {

/// The outline of a rectangle whose four sides are dashed lines with square caps.
struct DashedRectangle
{
    QRectF sides; ///< middle of the lines; origin at the top left; may lie outside of the picture
    double lineWidth = 1;
    double dashLength = 1; ///< of the gaps, too; the caps come on top of it
    graphics::Color color = {};
};

/// A transparent picture of `size` with the outline on it; only the pixels near its lines take
/// memory.
///
/// The upright sides begin with a dash at the bottom, the others at the left.
[[nodiscard]] graphics::Image pictureOf(const DashedRectangle& rectangle, graphics::PixelSize size);

} // namespace brenvaldo::platform::drawing
