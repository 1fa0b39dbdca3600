// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/foundation/folders.h>

#include <support/environment.h>
#include <support/text_printing.h>

#include <QDir>

#include <gtest/gtest.h>

using namespace brenvaldo::platform;
using brenvaldo::test::Environment;

TEST(Folders, FollowTheBaseDirectories)
{
    const Environment data("XDG_DATA_HOME", "/data");
    const Environment configuration("XDG_CONFIG_HOME", "/configuration");

    EXPECT_EQ(applicationSupportFolder(), u"/data"_qs);
    EXPECT_EQ(homeFolder(), u"/data/Brenvaldo"_qs);
    EXPECT_EQ(configurationFolder(), u"/configuration"_qs);
}

TEST(Folders, StandInTheUsersHomeByDefault)
{
    const Environment data("XDG_DATA_HOME", {});
    const Environment configuration("XDG_CONFIG_HOME", {});

    EXPECT_EQ(applicationSupportFolder(), QDir::homePath() + u"/.local/share"_qs);
    EXPECT_EQ(homeFolder(), QDir::homePath() + u"/.local/share/Brenvaldo"_qs);
    EXPECT_EQ(configurationFolder(), QDir::homePath() + u"/.config"_qs);
}

TEST(Folders, KnowTheDesktop)
{
    const Environment configuration("XDG_CONFIG_HOME", "/nowhere");

    EXPECT_EQ(desktopFolder(), QDir::homePath() + u"/Desktop"_qs);
}
