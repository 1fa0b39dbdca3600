// SPDX-License-Identifier: GPL-3.0-or-later
#include "pop_up.h"

#include <platform/foundation/literals.h>

#include <QStyleOptionComboBox>
#include <QStylePainter>
#include <QWheelEvent>

namespace brenvaldo::views {

PopUp::PopUp(const QString& lead, QWidget* parent)
    : QComboBox(parent)
    , m_lead(lead)
{
    setFocusPolicy(Qt::StrongFocus);
    setMaxVisibleItems(24);
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(4);
}

void PopUp::emphasise() { m_emphasised = true; }

QString PopUp::shownText() const
{
    return m_lead.isEmpty() ? currentText() : m_lead + QLatin1Char(' ') + currentText();
}

QSize PopUp::minimumSizeHint() const
{
    QSize size = QComboBox::minimumSizeHint();
    if (!m_lead.isEmpty())
        size.setWidth(fontMetrics().horizontalAdvance(m_lead + u" 00"_s) + 40);
    return size;
}

QSize PopUp::sizeHint() const { return minimumSizeHint(); }

void PopUp::paintEvent(QPaintEvent*)
{
    QStylePainter painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    const QRect room
        = style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, this);
    QFont font = painter.font();
    if (m_emphasised)
        font.setWeight(QFont::DemiBold);
    painter.setFont(font);
    painter.setPen(
        palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::Text)
    );
    const QString text = QFontMetrics(font).elidedText(shownText(), Qt::ElideRight, room.width());
    painter.drawText(room, Qt::AlignVCenter | Qt::AlignLeft, text);
}

void PopUp::wheelEvent(QWheelEvent* event)
{
    if (hasFocus())
        QComboBox::wheelEvent(event);
    else
        event->ignore();
}

} // namespace brenvaldo::views
