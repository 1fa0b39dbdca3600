// SPDX-License-Identifier: GPL-3.0-or-later
#include "color_well.h"

#include "color_panel.h"

#include <views/look/style_painting.h>
#include <views/look/theme.h>

#include <QPainter>

namespace brenvaldo::views {

ColorWell::ColorWell(QWidget* parent)
    : QAbstractButton(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(this, &QAbstractButton::clicked, this, &ColorWell::openPanel);
}

void ColorWell::setColor(const QColor& color)
{
    m_color = color;
    update();
}

QSize ColorWell::sizeHint() const { return {46, Metrics::fieldHeight}; }

void ColorWell::openPanel()
{
    auto* panel = new ColorPanel(m_color, this);
    connect(panel, &ColorPanel::chosen, this, &ColorWell::choose);
    panel->showBelow(*this);
}

void ColorWell::choose(const QColor& color)
{
    setColor(color);
    Q_EMIT chosen(color);
}

void ColorWell::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    QStyle::State state = isEnabled() ? QStyle::State_Enabled : QStyle::State_None;
    if (hasFocus())
        state |= QStyle::State_HasFocus;
    FieldFrame frame = fieldFrame(state);
    if (isEnabled() && underMouse() && !frame.focused)
        frame.line = colors().muted;
    paintFieldFrame(painter, rect(), frame);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(isEnabled() ? 1 : 0.35);
    painter.setPen(QPen(QColor(0, 0, 0, 40), 1));
    painter.setBrush(m_color);
    painter.drawRoundedRect(QRectF(rect()).adjusted(4.5, 4.5, -4.5, -4.5), 3, 3);
}

} // namespace brenvaldo::views
