// SPDX-License-Identifier: GPL-3.0-or-later
#include "theme.h"

#include "style.h"

#include <platform/foundation/literals.h>

#include <QApplication>
#include <QFontDatabase>
#include <QGuiApplication>

namespace brenvaldo::views {

namespace {

const Colors light{
    .window = QColor(0xfafafa),
    .field = QColor(0xffffff),
    .border = QColor(0xd9dadd),
    .text = QColor(0x1d1e21),
    .muted = QColor(0x686c75),
    .disabled = QColor(0xa9adb5),
    .accent = QColor(0x2f6fe0),
    .accentGround = QColor(0x2f6fe0),
    .accentHover = QColor(0x2762cc),
    .onAccent = QColor(0xffffff),
    .selection = QColor(0xdfeafb),
    .hover = QColor(0xeeeff1),
    .track = QColor(0xe6e8ec),
    .canvas = QColor(0x6e6f72),
};

const Colors dark{
    .window = QColor(0x26272b),
    .field = QColor(0x1b1c1f),
    .border = QColor(0x414349),
    .text = QColor(0xe9eaec),
    .muted = QColor(0x9fa3ac),
    .disabled = QColor(0x63666e),
    .accent = QColor(0x4a8bff),
    .accentGround = QColor(0x3572de),
    .accentHover = QColor(0x2f68cd),
    .onAccent = QColor(0xffffff),
    .selection = QColor(0x263a5c),
    .hover = QColor(0x32343a),
    .track = QColor(0x34363c),
    .canvas = QColor(0x4a4b4f),
};

void setEverywhere(QPalette& palette, QPalette::ColorRole role, const QColor& color)
{
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
        palette.setColor(group, role, color);
}

} // namespace

const Colors& colorsOf(Scheme scheme) { return scheme == Scheme::Dark ? dark : light; }

Scheme schemeOf(const QPalette& palette)
{
    const int text = palette.color(QPalette::WindowText).lightness();
    const int ground = palette.color(QPalette::Window).lightness();
    return text > ground ? Scheme::Dark : Scheme::Light;
}

const Colors& colors() { return colorsOf(schemeOf(QGuiApplication::palette())); }

QPalette paletteOf(Scheme scheme)
{
    const Colors& shade = colorsOf(scheme);
    QPalette palette(
        shade.text,
        shade.window,
        shade.field,
        shade.border,
        shade.muted,
        shade.text,
        shade.onAccent,
        shade.field,
        shade.window
    );
    setEverywhere(palette, QPalette::AlternateBase, shade.window);
    setEverywhere(palette, QPalette::Button, shade.field);
    setEverywhere(palette, QPalette::Light, shade.field);
    setEverywhere(palette, QPalette::Mid, shade.border);
    setEverywhere(palette, QPalette::Dark, shade.border);
    setEverywhere(palette, QPalette::Highlight, shade.accentGround);
    setEverywhere(palette, QPalette::HighlightedText, shade.onAccent);
    setEverywhere(palette, QPalette::ToolTipBase, shade.field);
    setEverywhere(palette, QPalette::ToolTipText, shade.text);
    setEverywhere(palette, QPalette::Link, shade.accent);
    setEverywhere(palette, QPalette::PlaceholderText, shade.muted);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, shade.disabled);
    return palette;
}

QFont windowFont()
{
    QFont font = QFontDatabase::systemFont(QFontDatabase::GeneralFont);
    if (QFontDatabase::hasFamily(u"Inter"_s))
        font.setFamily(u"Inter"_s);
    font.setPointSizeF(9.75);
    return font;
}

QFont scaledFont(const QFont& base, double factor)
{
    QFont font = base;
    font.setPointSizeF(base.pointSizeF() * factor);
    return font;
}

QFont headingFont(const QFont& base)
{
    QFont font = scaledFont(base, 0.86);
    font.setWeight(QFont::DemiBold);
    font.setCapitalization(QFont::AllUppercase);
    font.setLetterSpacing(QFont::PercentageSpacing, 106);
    return font;
}

void applyTheme()
{
    QApplication::setStyle(new Style);
    QApplication::setFont(windowFont());
}

} // namespace brenvaldo::views
