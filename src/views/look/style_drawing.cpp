// SPDX-License-Identifier: GPL-3.0-or-later
#include "style.h"
#include "style_painting.h"
#include "theme.h"

#include <QMenuBar>
#include <QPainter>
#include <QStyleOption>

namespace brenvaldo::views {

namespace {

bool isOn(const QStyleOption& option, QStyle::StateFlag flag)
{
    return option.state.testFlag(flag);
}

void paintRadio(QPainter& painter, const QStyleOption& option)
{
    const Colors& shade = colors();
    const bool enabled = isOn(option, QStyle::State_Enabled);
    const bool chosen = isOn(option, QStyle::State_On);
    const QColor mark = enabled ? shade.accentGround : shade.disabled;
    const QRectF circle = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(chosen ? mark : shade.disabled, 1));
    painter.setBrush(chosen ? mark : shade.field);
    painter.drawEllipse(circle);
    if (chosen) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(shade.onAccent);
        painter.drawEllipse(circle.center(), 3, 3);
    }
    painter.restore();
}

void paintButton(QPainter& painter, const QStyleOption& option, ButtonRole role)
{
    const Colors& shade = colors();
    const bool enabled = isOn(option, QStyle::State_Enabled);
    const bool pressed = isOn(option, QStyle::State_Sunken) || isOn(option, QStyle::State_On);
    const bool hovered = enabled && isOn(option, QStyle::State_MouseOver);
    FieldFrame frame = fieldFrame(option.state);
    if (role == ButtonRole::Primary) {
        frame.fill = !enabled ? shade.track
                              : (hovered || pressed ? shade.accentHover : shade.accentGround);
        frame.line = frame.focused ? shade.text : frame.fill;
    } else if (role == ButtonRole::Flat) {
        frame.fill = pressed ? shade.track : (hovered ? shade.hover : QColor(Qt::transparent));
        if (!frame.focused)
            frame.line = Qt::transparent;
    } else if (enabled && (pressed || hovered)) {
        frame.fill = pressed ? shade.track : shade.hover;
    }
    paintFieldFrame(painter, option.rect, frame);
}

void paintTabLabel(QPainter& painter, const QStyleOptionTab& tab)
{
    const Colors& shade = colors();
    const bool chosen = tab.state & QStyle::State_Selected;
    const bool enabled = tab.state & QStyle::State_Enabled;
    const bool hovered = tab.state & QStyle::State_MouseOver;
    QFont font = painter.font();
    font.setWeight(chosen ? QFont::DemiBold : QFont::Normal);
    painter.save();
    painter.setFont(font);
    const QColor pen = !enabled ? shade.disabled : (chosen || hovered ? shade.text : shade.muted);
    painter.setPen(pen);
    painter.drawText(tab.rect, Qt::AlignCenter | Qt::TextShowMnemonic, tab.text);
    painter.restore();
}

void paintTabShape(QPainter& painter, const QStyleOptionTab& tab)
{
    if (!(tab.state & QStyle::State_Selected))
        return;
    const Colors& shade = colors();
    const QRect line(tab.rect.left(), tab.rect.bottom() - 1, tab.rect.width(), 2);
    painter.fillRect(line, shade.accent);
    if (tab.state & QStyle::State_HasFocus)
        paintFieldFrame(
            painter,
            tab.rect.adjusted(1, 3, -1, -4),
            {.fill = Qt::transparent, .line = shade.accent, .focused = true}
        );
}

void paintMenuBarItem(QPainter& painter, const QStyleOptionMenuItem& item)
{
    const Colors& shade = colors();
    painter.fillRect(item.rect, shade.window);
    const bool active = item.state & (QStyle::State_Selected | QStyle::State_Sunken);
    if (active)
        paintFieldFrame(
            painter,
            item.rect.adjusted(2, 2, -2, -2),
            {.fill = shade.track, .line = Qt::transparent}
        );
    painter.setPen(item.state & QStyle::State_Enabled ? shade.text : shade.disabled);
    painter.drawText(item.rect, Qt::AlignCenter | Qt::TextShowMnemonic, item.text);
}

void paintBar(QPainter& painter, const QRectF& rect, const QColor& color)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    const double radius = std::min(rect.width(), rect.height()) / 2;
    painter.drawRoundedRect(rect, radius, radius);
    painter.restore();
}

void paintProgress(QPainter& painter, const QStyleOptionProgressBar& bar)
{
    const Colors& shade = colors();
    paintBar(painter, bar.rect, shade.track);
    const double range = bar.maximum - bar.minimum;
    const double part = range > 0 ? (bar.progress - bar.minimum) / range : 0;
    if (part > 0)
        paintBar(
            painter,
            QRectF(bar.rect.x(), bar.rect.y(), bar.rect.width() * part, bar.rect.height()),
            shade.accent
        );
}

void paintHeader(QPainter& painter, const QStyleOptionHeader& header)
{
    const Colors& shade = colors();
    painter.fillRect(header.rect, shade.window);
    painter.setPen(shade.border);
    painter.drawLine(header.rect.bottomLeft(), header.rect.bottomRight());
}

void paintCombo(
    const QStyle& style, QPainter& painter, const QStyleOptionComboBox& box, const QWidget* widget
)
{
    const Colors& shade = colors();
    FieldFrame frame = fieldFrame(box.state);
    const bool enabled = isOn(box, QStyle::State_Enabled);
    if (enabled && isOn(box, QStyle::State_MouseOver) && !frame.focused)
        frame.line = shade.muted;
    paintFieldFrame(painter, box.rect, frame);
    const QRect arrow
        = style.subControlRect(QStyle::CC_ComboBox, &box, QStyle::SC_ComboBoxArrow, widget);
    paintChevron(painter, arrow, enabled ? shade.muted : shade.disabled);
}

void paintScrollBar(
    const QStyle& style, QPainter& painter, const QStyleOptionSlider& bar, const QWidget* widget
)
{
    if (bar.maximum == bar.minimum)
        return;
    const QRectF slider
        = style.subControlRect(QStyle::CC_ScrollBar, &bar, QStyle::SC_ScrollBarSlider, widget);
    const Colors& shade = colors();
    const bool held = bar.state & (QStyle::State_MouseOver | QStyle::State_Sunken);
    const QColor color = held ? shade.muted : shade.disabled;
    const bool lying = bar.orientation == Qt::Horizontal;
    paintBar(painter, lying ? slider.adjusted(2, 4, -2, -2) : slider.adjusted(4, 2, -2, -2), color);
}

void paintSlider(
    const QStyle& style, QPainter& painter, const QStyleOptionSlider& slider, const QWidget* widget
)
{
    const Colors& shade = colors();
    const bool enabled = isOn(slider, QStyle::State_Enabled);
    const QColor mark = enabled ? shade.accent : shade.disabled;
    const QRectF handle
        = style.subControlRect(QStyle::CC_Slider, &slider, QStyle::SC_SliderHandle, widget);
    const QRectF groove(slider.rect.x() + 2, handle.center().y() - 2, slider.rect.width() - 4, 4);
    paintBar(painter, groove, shade.track);
    paintBar(
        painter, QRectF(groove.topLeft(), QPointF(handle.center().x(), groove.bottom())), mark
    );
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(isOn(slider, QStyle::State_HasFocus) ? shade.accent : shade.border, 1.5));
    painter.setBrush(enabled ? shade.onAccent : shade.window);
    painter.drawEllipse(handle.center(), 7, 7);
    painter.restore();
}

} // namespace

void Style::drawPrimitive(
    PrimitiveElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget
) const
{
    switch (element) {
    case PE_PanelLineEdit:
    case PE_FrameLineEdit:
        paintFieldFrame(*painter, option->rect, fieldFrame(option->state));
        return;
    case PE_IndicatorCheckBox:
        paintTickBox(
            *painter,
            {.rect = option->rect,
             .ticked = isOn(*option, State_On),
             .enabled = isOn(*option, State_Enabled),
             .focused = isOn(*option, State_HasFocus)}
        );
        return;
    case PE_IndicatorRadioButton:
        paintRadio(*painter, *option);
        return;
    case PE_PanelButtonCommand:
        paintButton(*painter, *option, buttonRole(widget));
        return;
    case PE_PanelButtonTool:
        paintButton(*painter, *option, ButtonRole::Flat);
        return;
    case PE_FrameFocusRect:
    case PE_PanelScrollAreaCorner:
        return;
    case PE_Frame:
        paintFieldFrame(*painter, option->rect, fieldFrame(option->state));
        return;
    case PE_FrameMenu:
        painter->setPen(colors().border);
        painter->drawRect(option->rect.adjusted(0, 0, -1, -1));
        return;
    case PE_FrameTabBarBase:
        painter->setPen(colors().border);
        painter->drawLine(option->rect.bottomLeft(), option->rect.bottomRight());
        return;
    default:
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void Style::drawControl(
    ControlElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget
) const
{
    if (const auto* tab = qstyleoption_cast<const QStyleOptionTab*>(option)) {
        if (element == CE_TabBarTabShape)
            return paintTabShape(*painter, *tab);
        if (element == CE_TabBarTabLabel)
            return paintTabLabel(*painter, *tab);
    }
    if (const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option)) {
        if (element == CE_MenuBarItem)
            return paintMenuBarItem(*painter, *item);
        if (element == CE_MenuBarEmptyArea)
            return painter->fillRect(option->rect, colors().window);
    }
    if (const auto* bar = qstyleoption_cast<const QStyleOptionProgressBar*>(option)) {
        if (element == CE_ProgressBar)
            return paintProgress(*painter, *bar);
    }
    if (const auto* header = qstyleoption_cast<const QStyleOptionHeader*>(option)) {
        if (element == CE_HeaderSection)
            return paintHeader(*painter, *header);
    }
    if (const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option)) {
        if (element == CE_PushButtonLabel && buttonRole(widget) == ButtonRole::Primary) {
            const bool enabled = isOn(*button, State_Enabled);
            painter->setPen(enabled ? colors().onAccent : colors().disabled);
            painter->drawText(button->rect, Qt::AlignCenter | Qt::TextShowMnemonic, button->text);
            return;
        }
    }
    if (element == CE_Splitter)
        return painter->fillRect(option->rect, colors().window);
    QProxyStyle::drawControl(element, option, painter, widget);
}

void Style::drawComplexControl(
    ComplexControl control,
    const QStyleOptionComplex* option,
    QPainter* painter,
    const QWidget* widget
) const
{
    if (const auto* box = qstyleoption_cast<const QStyleOptionComboBox*>(option)) {
        if (control == CC_ComboBox)
            return paintCombo(*proxy(), *painter, *box, widget);
    }
    if (const auto* slider = qstyleoption_cast<const QStyleOptionSlider*>(option)) {
        if (control == CC_ScrollBar)
            return paintScrollBar(*proxy(), *painter, *slider, widget);
        if (control == CC_Slider && slider->orientation == Qt::Horizontal)
            return paintSlider(*proxy(), *painter, *slider, widget);
    }
    QProxyStyle::drawComplexControl(control, option, painter, widget);
}

} // namespace brenvaldo::views
