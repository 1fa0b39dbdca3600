// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QPainterPath>

namespace brenvaldo::platform::drawing {

/// How a line is drawn along a path.
struct Stroke
{
    double width = 1; ///< pixels; 0 and less draw nothing
    Qt::PenCapStyle cap = Qt::FlatCap;
    Qt::PenJoinStyle join = Qt::SvgMiterJoin;
    QList<double> dash = {}; ///< lengths of lines and gaps in turn, in pixels; empty: one line
};

/// The outline of what the stroke covers; empty when it draws nothing.
[[nodiscard]] QPainterPath stroked(const QPainterPath& path, const Stroke& stroke);

} // namespace brenvaldo::platform::drawing
