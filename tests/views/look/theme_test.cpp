// SPDX-License-Identifier: GPL-3.0-or-later
#include <views/look/desktop_scheme.h>
#include <views/look/theme.h>

#include <gtest/gtest.h>

#include <QApplication>
#include <QDBusVariant>
#include <QStyle>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;
using brenvaldo::views::colors;
using brenvaldo::views::Colors;
using brenvaldo::views::colorsOf;
using brenvaldo::views::DesktopScheme;
using brenvaldo::views::paletteOf;
using brenvaldo::views::Scheme;
using brenvaldo::views::wishedScheme;

namespace {

double luminance(const QColor& color)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF())
        + 0.0722 * linear(color.blueF());
}

/// 1 to 21, by the rule of the web's accessibility guidelines.
double contrast(const QColor& one, const QColor& other)
{
    const double first = luminance(one) + 0.05;
    const double second = luminance(other) + 0.05;
    return std::max(first, second) / std::min(first, second);
}

} // namespace

TEST(Theme, TakesTheSchemeFromTheDesktopsPalette)
{
    QPalette foreign(QColor(0x303030));
    foreign.setColor(QPalette::WindowText, Qt::white);
    foreign.setColor(QPalette::Window, QColor(0x202020));

    QApplication::style()->polish(foreign);

    EXPECT_EQ(foreign.color(QPalette::Window), colorsOf(Scheme::Dark).window);
}

TEST(Theme, FollowsTheSchemeWhileRunning)
{
    EXPECT_EQ(&colors(), &colorsOf(Scheme::Light));

    QApplication::setPalette(paletteOf(Scheme::Dark));
    EXPECT_EQ(&colors(), &colorsOf(Scheme::Dark));

    QApplication::setPalette(QPalette());
    EXPECT_EQ(&colors(), &colorsOf(Scheme::Light));
}

TEST(Theme, TakesTheWishOfTheDesktopOutOfItsVariants)
{
    const auto wrapped = [](uint value) {
        const QDBusVariant inner{QVariant(value)};
        return QVariant::fromValue(QDBusVariant(QVariant::fromValue(inner)));
    };

    EXPECT_EQ(wishedScheme(wrapped(1)), Scheme::Dark);
    EXPECT_EQ(wishedScheme(wrapped(2)), Scheme::Light);
    EXPECT_EQ(wishedScheme(QVariant(1U)), Scheme::Dark);
    EXPECT_EQ(wishedScheme(QVariant()), Scheme::Light);
}

TEST(Theme, FollowsTheWishOfTheDesktopWhileRunning)
{
    const QString group = u"org.freedesktop.appearance"_s;
    const QString key = u"color-scheme"_s;
    DesktopScheme scheme;

    scheme.settingChanged(group, key, QDBusVariant(1U));
    EXPECT_EQ(&colors(), &colorsOf(Scheme::Dark));

    scheme.settingChanged(group, u"contrast"_s, QDBusVariant(0U));
    EXPECT_EQ(&colors(), &colorsOf(Scheme::Dark));

    scheme.settingChanged(group, key, QDBusVariant(2U));
    EXPECT_EQ(&colors(), &colorsOf(Scheme::Light));
}

TEST(Theme, KeepsTextReadable)
{
    for (const auto scheme : {Scheme::Light, Scheme::Dark}) {
        const Colors& shade = colorsOf(scheme);
        EXPECT_GT(std::abs(shade.text.lightness() - shade.window.lightness()), 180);
        EXPECT_GT(std::abs(shade.muted.lightness() - shade.window.lightness()), 110);
        EXPECT_GE(contrast(shade.text, shade.window), 7);
        EXPECT_GE(contrast(shade.muted, shade.window), 4.5);
        EXPECT_GE(contrast(shade.muted, shade.field), 4.5);
        EXPECT_GE(contrast(shade.onAccent, shade.accentGround), 4.5);
        EXPECT_GE(contrast(shade.onAccent, shade.accentHover), 4.5);
        EXPECT_GE(contrast(shade.accent, shade.field), 4.5);
    }
}
