// SPDX-License-Identifier: GPL-3.0-or-later
#include "colour_well.h"

#include "colour_panel.h"

#include <views/look/style_painting.h>
#include <views/look/theme.h>

#include <QPainter>

namespace brenvaldo::views {

ColourWell::ColourWell(QWidget* parent)
    : QAbstractButton(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(this, &QAbstractButton::clicked, this, &ColourWell::openPanel);
}

void ColourWell::setColour(const QColor& colour)
{
    m_colour = colour;
    update();
}

QSize ColourWell::sizeHint() const { return {46, Metrics::fieldHeight}; }

void ColourWell::openPanel()
{
    auto* panel = new ColourPanel(m_colour, this);
    connect(panel, &ColourPanel::chosen, this, &ColourWell::choose);
    panel->showBelow(*this);
}

void ColourWell::choose(const QColor& colour)
{
    setColour(colour);
    Q_EMIT chosen(colour);
}

void ColourWell::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    QStyle::State state = isEnabled() ? QStyle::State_Enabled : QStyle::State_None;
    if (hasFocus())
        state |= QStyle::State_HasFocus;
    FieldFrame frame = fieldFrame(state);
    if (isEnabled() && underMouse() && !frame.focused)
        frame.line = colours().muted;
    paintFieldFrame(painter, rect(), frame);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(isEnabled() ? 1 : 0.35);
    painter.setPen(QPen(QColor(0, 0, 0, 40), 1));
    painter.setBrush(m_colour);
    painter.drawRoundedRect(QRectF(rect()).adjusted(4.5, 4.5, -4.5, -4.5), 3, 3);
}

} // namespace brenvaldo::views
