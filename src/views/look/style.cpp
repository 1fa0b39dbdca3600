// SPDX-License-Identifier: GPL-3.0-or-later
#include "style.h"

#include "style_painting.h"
#include "theme.h"

#include <platform/foundation/literals.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QComboBox>
#include <QLineEdit>
#include <QStyleFactory>
#include <QStyleOption>
#include <QTabBar>

namespace brenvaldo::views {

namespace {

constexpr auto roleProperty = "buttonRole";
constexpr int listMargin = 7;

} // namespace

void setButtonRole(QWidget& button, ButtonRole role)
{
    button.setProperty(roleProperty, static_cast<int>(role));
}

ButtonRole buttonRole(const QWidget* button)
{
    return button ? static_cast<ButtonRole>(button->property(roleProperty).toInt())
                  : ButtonRole::Plain;
}

Style::Style()
    : QProxyStyle(QStyleFactory::create(u"Fusion"_s))
{
}

void Style::polish(QPalette& palette) { palette = paletteOf(schemeOf(palette)); }

void Style::polish(QWidget* widget)
{
    QProxyStyle::polish(widget);
    const bool follows = qobject_cast<QAbstractButton*>(widget) || qobject_cast<QComboBox*>(widget)
        || qobject_cast<QLineEdit*>(widget) || qobject_cast<QTabBar*>(widget)
        || qobject_cast<QAbstractSlider*>(widget);
    if (follows)
        widget->setAttribute(Qt::WA_Hover);
}

int Style::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    switch (metric) {
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
        return 16;
    case PM_CheckBoxLabelSpacing:
    case PM_RadioButtonLabelSpacing:
        return 8;
    case PM_ScrollBarExtent:
        return Metrics::scrollBar;
    case PM_ScrollBarSliderMin:
        return 32;
    case PM_SplitterWidth:
        return 5;
    case PM_DefaultFrameWidth:
    case PM_MenuPanelWidth:
        return 1;
    case PM_MenuVMargin:
        return 4;
    case PM_FocusFrameHMargin: // beside the texts of lists and tables
        return listMargin;
    case PM_MenuBarItemSpacing:
        return 0;
    case PM_SliderThickness:
    case PM_SliderControlThickness:
    case PM_SliderLength:
        return 16;
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical:
    case PM_TabBarTabShiftVertical:
        return 0;
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int Style::styleHint(
    StyleHint hint, const QStyleOption* option, const QWidget* widget, QStyleHintReturn* returnData
) const
{
    switch (hint) {
    case SH_EtchDisabledText:
    case SH_DitherDisabledText:
    case SH_ComboBox_Popup:
    case SH_DialogButtonBox_ButtonsHaveIcons:
    case SH_Menu_Scrollable:
        return 0;
    case SH_TabBar_Alignment:
        return Qt::AlignLeft;
    case SH_TabBar_ElideMode:
        return Qt::ElideNone;
    case SH_ScrollView_FrameOnlyAroundContents:
        return 0;
    default:
        return QProxyStyle::styleHint(hint, option, widget, returnData);
    }
}

QSize Style::sizeFromContents(
    ContentsType type, const QStyleOption* option, const QSize& size, const QWidget* widget
) const
{
    const QSize base = QProxyStyle::sizeFromContents(type, option, size, widget);
    const int text = option->fontMetrics.height();
    const int field = std::max(Metrics::fieldHeight, text + 14);
    switch (type) {
    case CT_LineEdit:
        return {base.width(), field};
    case CT_ComboBox:
        return {size.width() + 40, field};
    case CT_PushButton: {
        const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
        if (button && button->text.isEmpty())
            return {field, field};
        const int padding = buttonRole(widget) == ButtonRole::Flat ? 16 : 26;
        const int height = buttonRole(widget) == ButtonRole::Primary ? field + 8 : field;
        return {std::max(size.width() + padding, field), height};
    }
    case CT_ToolButton:
        return {size.width() + 12, std::max(size.height() + 10, field - 2)};
    case CT_TabBarTab:
        return {size.width() + 4, text + 18};
    case CT_MenuBarItem:
        return {size.width() + 18, text + 13};
    case CT_MenuItem:
        return {base.width() + 12, std::max(base.height(), text + (size.height() > 2 ? 10 : -12))};
    case CT_CheckBox:
    case CT_RadioButton:
        return {base.width(), std::max(base.height(), text + 8)};
    case CT_ItemViewItem:
        return {base.width(), std::max(base.height(), text + 9)};
    case CT_HeaderSection:
        return {base.width() + 8, text + 10};
    default:
        return base;
    }
}

QRect Style::subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget)
    const
{
    if (element == SE_LineEditContents)
        return option->rect.adjusted(7, 1, -7, -1);
    if (element == SE_HeaderLabel)
        return option->rect.adjusted(listMargin + 1, 0, -listMargin, 0);
    if (element == SE_TabBarTabLeftButton || element == SE_TabBarTabRightButton)
        return {};
    return QProxyStyle::subElementRect(element, option, widget);
}

QRect Style::subControlRect(
    ComplexControl control,
    const QStyleOptionComplex* option,
    SubControl subControl,
    const QWidget* widget
) const
{
    if (control == CC_ComboBox && subControl == SC_ComboBoxArrow)
        return {option->rect.right() - 28, option->rect.top(), 28, option->rect.height()};
    if (control == CC_ComboBox && subControl == SC_ComboBoxEditField)
        return option->rect.adjusted(10, 1, -28, -1);
    if (control == CC_ScrollBar) {
        switch (subControl) {
        case SC_ScrollBarAddLine:
        case SC_ScrollBarSubLine:
            return {};
        case SC_ScrollBarGroove:
            return option->rect;
        case SC_ScrollBarSlider: {
            const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
            if (!bar)
                break;
            const bool lying = bar->orientation == Qt::Horizontal;
            const int length = lying ? bar->rect.width() : bar->rect.height();
            const int range = bar->maximum - bar->minimum;
            const int smallest = std::min(32, length);
            const int slider = range == 0 || bar->pageStep == 0
                ? length
                : std::clamp(
                    static_cast<int>(qint64(length) * bar->pageStep / (range + bar->pageStep)),
                    smallest,
                    length
                );
            const int start = sliderPositionFromValue(
                bar->minimum, bar->maximum, bar->sliderPosition, length - slider, bar->upsideDown
            );
            return lying ? QRect(start, 0, slider, bar->rect.height())
                         : QRect(0, start, bar->rect.width(), slider);
        }
        default:
            break;
        }
    }
    return QProxyStyle::subControlRect(control, option, subControl, widget);
}

} // namespace brenvaldo::views
