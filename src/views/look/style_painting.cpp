// SPDX-License-Identifier: GPL-3.0-or-later
#include "style_painting.h"

#include "theme.h"

#include <QPainter>
#include <QPainterPath>

namespace brenvaldo::views {

void paintFieldFrame(QPainter& painter, const QRect& rect, const FieldFrame& frame)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const double width = frame.focused ? 2 : 1;
    const double inset = width / 2;
    painter.setBrush(frame.fill);
    painter.setPen(QPen(frame.line, width));
    painter.drawRoundedRect(
        QRectF(rect).adjusted(inset, inset, -inset, -inset), Metrics::radius, Metrics::radius
    );
    painter.restore();
}

FieldFrame fieldFrame(QStyle::State state)
{
    const Colors& shade = colors();
    if (!(state & QStyle::State_Enabled))
        return {.fill = shade.window, .line = shade.track};
    if (state & QStyle::State_HasFocus)
        return {.fill = shade.field, .line = shade.accent, .focused = true};
    return {.fill = shade.field, .line = shade.border};
}

void paintChevron(QPainter& painter, const QRectF& rect, const QColor& color)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(color, 1.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    const QPointF centre = rect.center();
    painter.drawPolyline(QPolygonF{
        {centre.x() - 3.5, centre.y() - 1.5},
        {centre.x(), centre.y() + 2},
        {centre.x() + 3.5, centre.y() - 1.5}});
    painter.restore();
}

void paintTickBox(QPainter& painter, const TickBox& box)
{
    const Colors& shade = colors();
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor mark = box.enabled ? shade.accentGround : shade.disabled;
    const QColor line = box.ticked ? mark : (box.enabled ? shade.disabled : shade.track);
    const QRectF inner = box.rect.adjusted(0.5, 0.5, -0.5, -0.5);
    if (box.focused || box.onPicture) {
        painter.setPen(QPen(box.focused ? shade.accent : QColor(255, 255, 255, 220), 1.5));
        painter.setBrush(Qt::NoBrush);
        const double rim = box.focused ? 2 : 1;
        painter.drawRoundedRect(inner.adjusted(-rim, -rim, rim, rim), 5, 5);
    }
    painter.setPen(QPen(line, 1));
    painter.setBrush(box.ticked ? mark : (box.enabled ? shade.field : shade.window));
    painter.drawRoundedRect(inner, 3.5, 3.5);
    if (box.ticked) {
        const double unit = box.rect.width() / 16;
        const QPointF origin = box.rect.topLeft();
        painter.setPen(QPen(shade.onAccent, 1.9 * unit, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin)
        );
        painter.drawPolyline(QPolygonF{
            origin + QPointF(4.2, 8.3) * unit,
            origin + QPointF(6.9, 11) * unit,
            origin + QPointF(11.9, 5.3) * unit});
    }
    painter.restore();
}

} // namespace brenvaldo::views
