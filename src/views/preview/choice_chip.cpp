// SPDX-License-Identifier: GPL-3.0-or-later
#include "choice_chip.h"

#include <views/look/style_painting.h>
#include <views/look/theme.h>

#include <QAbstractButton>
#include <QHBoxLayout>
#include <QPainter>

namespace brenvaldo::views {

namespace {

class ChipButton : public QAbstractButton
{
public:
    ChipButton(const QString& title, QWidget* parent)
        : QAbstractButton(parent)
    {
        setText(title);
        setAccessibleName(title);
        setCheckable(true);
        setFocusPolicy(Qt::TabFocus);
        setAttribute(Qt::WA_Hover);
    }

    [[nodiscard]] QSize sizeHint() const override
    {
        QFont bold = font();
        bold.setWeight(QFont::DemiBold);
        return {QFontMetrics(bold).horizontalAdvance(text()) + 18, fontMetrics().height() + 8};
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        if (hasFocus())
            paintFieldFrame(
                painter,
                rect().adjusted(1, 1, -1, -1),
                {.fill = Qt::transparent, .line = Qt::white, .focused = true}
            );
        QFont face = font();
        face.setWeight(isChecked() ? QFont::DemiBold : QFont::Normal);
        painter.setFont(face);
        const int strength = isChecked() || underMouse() ? 255 : 165;
        painter.setPen(QColor(255, 255, 255, strength));
        painter.drawText(rect(), Qt::AlignCenter, text());
    }
};

} // namespace

ChoiceChip::ChoiceChip(const QStringList& titles, QWidget* parent)
    : QWidget(parent)
{
    auto* line = new QHBoxLayout(this);
    line->setContentsMargins(3, 1, 3, 1);
    line->setSpacing(0);
    setFont(scaledFont(font(), 0.94));
    for (int index = 0; index < titles.size(); ++index) {
        auto* button = new ChipButton(titles.at(index), this);
        m_group.addButton(button, index);
        line->addWidget(button);
    }
    connect(&m_group, &QButtonGroup::idClicked, this, &ChoiceChip::picked);
}

void ChoiceChip::select(int index)
{
    if (QAbstractButton* button = m_group.button(index))
        button->setChecked(true);
}

void ChoiceChip::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    paintChip(painter, rect());
    painter.setPen(QColor(255, 255, 255, 70));
    for (int index = 1; index < m_group.buttons().size(); ++index) {
        const int x = m_group.button(index)->x();
        painter.drawLine(x, 7, x, height() - 8);
    }
}

void paintChip(QPainter& painter, const QRect& rect)
{
    paintFieldFrame(painter, rect, {.fill = QColor(38, 39, 42, 220), .line = Qt::transparent});
}

} // namespace brenvaldo::views
