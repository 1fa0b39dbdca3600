// SPDX-License-Identifier: GPL-3.0-or-later
#include "segments.h"

#include <views/look/shown_focus.h>
#include <views/look/style_painting.h>
#include <views/look/theme.h>

#include <QFocusEvent>
#include <QGridLayout>
#include <QPainter>

namespace brenvaldo::views {

namespace {

constexpr int gridColumns = 3;
constexpr QSize gridCellSize(26, 20);

/// One segment: a titled part of a row, or a bare cell of the grid.
class SegmentButton : public QAbstractButton
{
public:
    SegmentButton(Segments::Look look, const QString& title, QWidget* parent)
        : QAbstractButton(parent)
        , m_look(look)
    {
        setText(title);
        setAccessibleName(title);
        if (look == Segments::Look::Grid)
            setToolTip(title);
        setCheckable(true);
        setFocusPolicy(Qt::StrongFocus);
        setAttribute(Qt::WA_Hover);
    }

    [[nodiscard]] QSize sizeHint() const override
    {
        if (m_look == Segments::Look::Grid)
            return gridCellSize;
        return {fontMetrics().horizontalAdvance(text()) + 16, Metrics::fieldHeight - 6};
    }
    [[nodiscard]] QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void focusInEvent(QFocusEvent* event) override
    {
        m_showsFocus = showsFocus(event->reason(), m_showsFocus);
        QAbstractButton::focusInEvent(event);
    }

    void paintEvent(QPaintEvent*) override
    {
        const Colors& shade = colors();
        QPainter painter(this);
        paintFieldFrame(
            painter, rect(), {.fill = fill(), .line = line(), .focused = isFocusShown()}
        );
        if (m_look == Segments::Look::Grid)
            return;
        const QColor ink = isChecked() ? shade.onAccent : shade.text;
        painter.setPen(isEnabled() ? ink : shade.disabled);
        painter.drawText(rect(), Qt::AlignCenter, text());
    }

private:
    [[nodiscard]] bool isFocusShown() const { return hasFocus() && m_showsFocus; }

    [[nodiscard]] QColor fill() const
    {
        const Colors& shade = colors();
        if (isChecked())
            return isEnabled() ? shade.accentGround : shade.disabled;
        const bool grid = m_look == Segments::Look::Grid;
        if (isEnabled() && underMouse())
            return grid ? shade.border : shade.hover;
        return grid ? shade.track : QColor(Qt::transparent);
    }

    [[nodiscard]] QColor line() const
    {
        if (!isFocusShown())
            return Qt::transparent;
        return isChecked() ? colors().text : colors().accent;
    }

    Segments::Look m_look;
    bool m_showsFocus = false;
};

} // namespace

Segments::Segments(Look look, QWidget* parent)
    : QWidget(parent)
    , m_look(look)
{
    auto* grid = new QGridLayout(this);
    const int inset = look == Look::Grid ? 6 : 3;
    grid->setContentsMargins(inset, inset, inset, inset);
    grid->setSpacing(look == Look::Grid ? 3 : 2);
    setSizePolicy(
        look == Look::Grid ? QSizePolicy::Fixed : QSizePolicy::Preferred, QSizePolicy::Fixed
    );
    connect(&m_group, &QButtonGroup::idClicked, this, &Segments::picked);
}

void Segments::setTitles(const QStringList& titles)
{
    if (titles == m_titles)
        return;
    for (QAbstractButton* button : m_group.buttons()) {
        m_group.removeButton(button);
        button->deleteLater();
    }
    m_titles = titles;
    for (int index = 0; index < count(); ++index)
        addSegment(index);
}

void Segments::addSegment(int index)
{
    auto* button = new SegmentButton(m_look, m_titles.at(index), this);
    m_group.addButton(button, index);
    const int columns = m_look == Look::Grid ? gridColumns : count();
    static_cast<QGridLayout*>(layout())->addWidget(button, index / columns, index % columns);
}

void Segments::select(int index)
{
    if (QAbstractButton* button = m_group.button(index)) {
        button->setChecked(true);
        return;
    }
    m_group.setExclusive(false);
    if (QAbstractButton* chosen = m_group.checkedButton())
        chosen->setChecked(false);
    m_group.setExclusive(true);
}

void Segments::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QStyle::State state = isEnabled() ? QStyle::State_Enabled : QStyle::State_None;
    paintFieldFrame(painter, rect(), fieldFrame(state));
}

} // namespace brenvaldo::views
