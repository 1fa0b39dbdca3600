// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QIcon>
#include <QRect>
#include <QString>

class QPainter;

namespace brenvaldo::views {

/// The drawing `name` of our icon set; it takes the colours of the present scheme each time it is
/// painted.
[[nodiscard]] QIcon icon(const QString& name);

/// Paints the drawing `name` in one colour.
void paintIcon(QPainter& painter, const QString& name, const QRect& rect, const QColor& color);

} // namespace brenvaldo::views
