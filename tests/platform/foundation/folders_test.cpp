// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/foundation/folders.h>

#include <support/text_printing.h>

#include <QDir>

#include <gtest/gtest.h>

using namespace brenvaldo::platform;

namespace {

/// Gives an environment variable a value, and its old one back.
class Environment
{
public:
    Environment(const char* name, const QByteArray& value)
        : m_name(name)
        , m_before(qgetenv(name))
    {
        set(value);
    }
    Environment(const Environment&) = delete;
    Environment& operator=(const Environment&) = delete;
    Environment(Environment&&) = delete;
    Environment& operator=(Environment&&) = delete;
    ~Environment() { set(m_before); }

private:
    void set(const QByteArray& value) const
    {
        value.isNull() ? qunsetenv(m_name) : qputenv(m_name, value);
    }

    const char* m_name;
    QByteArray m_before;
};

} // namespace

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
