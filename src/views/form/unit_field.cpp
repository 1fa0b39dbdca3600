// SPDX-License-Identifier: GPL-3.0-or-later
#include "unit_field.h"

#include <platform/foundation/literals.h>
#include <views/look/theme.h>

#include <QEvent>
#include <QPainter>

namespace brenvaldo::views {

namespace {

constexpr int edge = 9;
constexpr double unitScale = 0.88;

} // namespace

UnitField::UnitField(const QString& unit, QWidget* parent)
    : QLineEdit(parent)
    , m_unit(unit)
{
    makeRoomForUnit();
}

int UnitField::unitWidth() const
{
    if (m_unit.isEmpty())
        return 0;
    return QFontMetrics(scaledFont(font(), unitScale)).horizontalAdvance(m_unit);
}

void UnitField::makeRoomForUnit()
{
    setTextMargins(0, 0, m_unit.isEmpty() ? 0 : unitWidth() + 6, 0);
}

QSize UnitField::minimumSizeHint() const
{
    const int digits = fontMetrics().horizontalAdvance(u"0000"_s);
    return {digits + unitWidth() + 2 * edge + 8, QLineEdit::sizeHint().height()};
}

QSize UnitField::sizeHint() const { return minimumSizeHint(); }

void UnitField::paintEvent(QPaintEvent* event)
{
    QLineEdit::paintEvent(event);
    if (m_unit.isEmpty())
        return;
    QPainter painter(this);
    painter.setFont(scaledFont(font(), unitScale));
    painter.setPen(isEnabled() ? colors().muted : colors().disabled);
    painter.drawText(rect().adjusted(0, 0, -edge, 0), Qt::AlignVCenter | Qt::AlignRight, m_unit);
}

void UnitField::changeEvent(QEvent* event)
{
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        makeRoomForUnit();
}

} // namespace brenvaldo::views
