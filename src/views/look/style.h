// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QProxyStyle>

namespace brenvaldo::views {

/// What a push button means; it decides how the button is painted.
enum class ButtonRole {
    Plain, ///< a field-like button with a hairline
    Primary, ///< the one button that starts the work
    Flat ///< no frame until the pointer stands on it
};

void setButtonRole(QWidget& button, ButtonRole role);
[[nodiscard]] ButtonRole buttonRole(const QWidget* button);

/// Draws the standard widgets of the window: rounded fields with hairlines, one accent colour, a
/// visible focus ring. Colours come from `colours()`; the desktop's palette only chooses the
/// scheme.
class Style : public QProxyStyle
{
public:
    Style();

    using QProxyStyle::polish;
    void polish(QPalette& palette) override;
    void polish(QWidget* widget) override;

    [[nodiscard]] int pixelMetric(
        PixelMetric metric, const QStyleOption* option, const QWidget* widget
    ) const override;
    [[nodiscard]] int styleHint(
        StyleHint hint,
        const QStyleOption* option,
        const QWidget* widget,
        QStyleHintReturn* returnData
    ) const override;
    [[nodiscard]] QSize sizeFromContents(
        ContentsType type, const QStyleOption* option, const QSize& size, const QWidget* widget
    ) const override;
    [[nodiscard]] QRect subElementRect(
        SubElement element, const QStyleOption* option, const QWidget* widget
    ) const override;
    [[nodiscard]] QRect subControlRect(
        ComplexControl control,
        const QStyleOptionComplex* option,
        SubControl subControl,
        const QWidget* widget
    ) const override;

    void drawPrimitive(
        PrimitiveElement element,
        const QStyleOption* option,
        QPainter* painter,
        const QWidget* widget
    ) const override;
    void drawControl(
        ControlElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget
    ) const override;
    void drawComplexControl(
        ComplexControl control,
        const QStyleOptionComplex* option,
        QPainter* painter,
        const QWidget* widget
    ) const override;
};

} // namespace brenvaldo::views
