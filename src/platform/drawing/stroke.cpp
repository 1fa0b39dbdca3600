// SPDX-License-Identifier: GPL-3.0-or-later
#include "stroke.h"

namespace brenvaldo::platform::drawing {

QPainterPath stroked(const QPainterPath& path, const Stroke& stroke)
{
    if (stroke.width <= 0)
        return {};
    constexpr double miterLimit = 10;
    constexpr double largestDeviation = 0.02; // pixels; large circles show more of it
    QPainterPathStroker stroker;
    stroker.setWidth(stroke.width);
    stroker.setCapStyle(stroke.cap);
    stroker.setJoinStyle(stroke.join);
    stroker.setMiterLimit(miterLimit);
    stroker.setCurveThreshold(largestDeviation);
    if (!stroke.dash.isEmpty()) {
        QList<qreal> inWidths; // as the stroker measures them
        for (const double length : stroke.dash)
            inWidths.append(length / stroke.width);
        stroker.setDashPattern(inWidths);
    }
    return stroker.createStroke(path);
}

} // namespace brenvaldo::platform::drawing
