// SPDX-License-Identifier: GPL-3.0-or-later
#include "drawn_line.h"

#include "dv_color_conversions.h"
#include "frame_rules.h"

#include <platform/drawing/stroke.h>

namespace brenvaldo::imaging {

using platform::drawing::Paint;

namespace {

Paint paintOf(const DrawnLine& line, const QTransform& place)
{
    const platform::graphics::Color color = DVColorConversions::NSColorToCGColor(line.color);
    if (!line.fade)
        return color;
    return platform::drawing::LinearGradient{
        .fade = {.from = color, .to = platform::drawing::clearColor},
        .start = place.map(line.fade->p1()),
        .end = place.map(line.fade->p2())};
}

} // namespace

platform::drawing::PaintedShape shapeOf(const DrawnLine& line, platform::graphics::PixelSize canvas)
{
    const QTransform place = toPixels(canvas);
    return {
        .shape = place.map(platform::drawing::stroked(line.path, {.width = line.width})),
        .paint = paintOf(line, place),
        .mode = line.mode,
        .opacity = line.opacity};
}

platform::graphics::Image drawn(const platform::graphics::Image& canvas, const DrawnLine& line)
{
    return platform::drawing::painted(canvas, shapeOf(line, canvas.pixelSize()));
}

} // namespace brenvaldo::imaging
