// SPDX-License-Identifier: GPL-3.0-or-later
#include <views/theme.h>

#include <gtest/gtest.h>

#include <QApplication>
#include <QStyle>

using namespace brenvaldo::views;

TEST(Theme, TakesTheSchemeFromTheDesktopsPalette)
{
    QPalette foreign(QColor(0x303030));
    foreign.setColor(QPalette::WindowText, Qt::white);
    foreign.setColor(QPalette::Window, QColor(0x202020));

    QApplication::style()->polish(foreign);

    EXPECT_EQ(foreign.color(QPalette::Window), coloursOf(Scheme::Dark).window);
}

TEST(Theme, FollowsTheSchemeWhileRunning)
{
    EXPECT_EQ(&colours(), &coloursOf(Scheme::Light));

    QApplication::setPalette(paletteOf(Scheme::Dark));
    EXPECT_EQ(&colours(), &coloursOf(Scheme::Dark));

    QApplication::setPalette(QPalette());
    EXPECT_EQ(&colours(), &coloursOf(Scheme::Light));
}

TEST(Theme, KeepsTextReadable)
{
    for (const auto scheme : {Scheme::Light, Scheme::Dark}) {
        const Colours& shade = coloursOf(scheme);
        EXPECT_GT(std::abs(shade.text.lightness() - shade.window.lightness()), 180);
        EXPECT_GT(std::abs(shade.muted.lightness() - shade.window.lightness()), 110);
    }
}
