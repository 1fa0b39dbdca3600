// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/foundation/folders.h>

#include <support/environment.h>
#include <support/text_printing.h>

#include <QDir>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace brenvaldo::platform;
using brenvaldo::test::Environment;

TEST(Folders, FollowTheBaseDirectories)
{
    const Environment data("XDG_DATA_HOME", "/data");
    const Environment configuration("XDG_CONFIG_HOME", "/configuration");

    EXPECT_EQ(applicationSupportFolder(), u"/data"_s);
    EXPECT_EQ(homeFolder(), u"/data/Brenvaldo"_s);
    EXPECT_EQ(configurationFolder(), u"/configuration"_s);
}

TEST(Folders, StandInTheUsersHomeByDefault)
{
    const Environment data("XDG_DATA_HOME", {});
    const Environment configuration("XDG_CONFIG_HOME", {});

    EXPECT_EQ(applicationSupportFolder(), QDir::homePath() + u"/.local/share"_s);
    EXPECT_EQ(homeFolder(), QDir::homePath() + u"/.local/share/Brenvaldo"_s);
    EXPECT_EQ(configurationFolder(), QDir::homePath() + u"/.config"_s);
}

TEST(Folders, KnowTheDesktop)
{
    const Environment configuration("XDG_CONFIG_HOME", "/nowhere");

    EXPECT_EQ(desktopFolder(), QDir::homePath() + u"/Desktop"_s);
}
