// SPDX-License-Identifier: GPL-3.0-or-later
#include "drawn_line.h"

#include "frame_rules.h"

#include <platform/drawing/stroke.h>

namespace brenvaldo::imaging {

platform::graphics::Image drawn(const platform::graphics::Image& canvas, const DrawnLine& line)
{
    const QTransform place = toPixels(canvas.pixelSize());
    platform::drawing::ShapePaint paint = line.paint;
    if (paint.fade)
        paint.fade = {.start = place.map(paint.fade->start), .end = place.map(paint.fade->end)};
    const QPainterPath shape = platform::drawing::stroked(line.path, {.width = line.width});
    return platform::drawing::painted(canvas, place.map(shape), paint);
}

} // namespace brenvaldo::imaging
