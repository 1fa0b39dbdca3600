// SPDX-License-Identifier: GPL-3.0-or-later
#include "section_button.h"

#include <views/look/icons.h>
#include <views/look/shown_focus.h>
#include <views/look/style_painting.h>
#include <views/look/theme.h>

#include <QFocusEvent>
#include <QPainter>

namespace brenvaldo::views {

namespace {

constexpr int iconSide = 18;

} // namespace

SectionButton::SectionButton(const QString& title, const QString& drawing, QWidget* parent)
    : QAbstractButton(parent)
    , m_drawing(drawing)
{
    setText(title);
    setAccessibleName(title);
    setFont(scaledFont(font(), 0.94));
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize SectionButton::sizeHint() const
{
    return {fontMetrics().horizontalAdvance(text()) + 20, iconSide + fontMetrics().height() + 17};
}

void SectionButton::focusInEvent(QFocusEvent* event)
{
    m_showsFocus = showsFocus(event->reason(), m_showsFocus);
    QAbstractButton::focusInEvent(event);
}

void SectionButton::paintEvent(QPaintEvent*)
{
    const Colors& shade = colors();
    QPainter painter(this);
    const QColor fill
        = isChecked() ? shade.accentGround : (underMouse() ? shade.hover : shade.field);
    const bool focused = hasFocus() && m_showsFocus;
    const QColor focusLine = isChecked() ? shade.text : shade.accent;
    paintFieldFrame(
        painter,
        rect(),
        {.fill = fill, .line = focused ? focusLine : Qt::transparent, .focused = focused}
    );
    const QColor ink = isChecked() ? shade.onAccent : shade.text;
    const QRect place((width() - iconSide) / 2, 7, iconSide, iconSide);
    paintIcon(painter, m_drawing, place, isChecked() ? ink : shade.muted);
    painter.setPen(ink);
    const QRect line(0, place.bottom() + 3, width(), fontMetrics().height() + 2);
    painter.drawText(line, Qt::AlignCenter, text());
}

} // namespace brenvaldo::views
