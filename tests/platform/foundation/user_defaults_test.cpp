// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/foundation/user_defaults.h>

#include <support/environment.h>
#include <support/temporary_folder.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using brenvaldo::platform::UserDefaults;
using brenvaldo::test::Environment;
using brenvaldo::test::TemporaryFolder;

TEST(UserDefaults, AnswerNothingForAKeyThatWasNeverSet)
{
    const TemporaryFolder folder;
    const UserDefaults defaults(folder.path(u"a.conf"_s));

    EXPECT_EQ(defaults.value(u"key"_s), std::nullopt);
    EXPECT_EQ(defaults.text(u"key"_s), u""_s);
}

TEST(UserDefaults, TellKeysApartByCase)
{
    const TemporaryFolder folder;
    UserDefaults defaults(folder.path(u"a.conf"_s));

    defaults.set(u"cActionsDestination"_s, u"one"_s);
    defaults.set(u"CActionsDestination"_s, u"two"_s);
    defaults.synchronize();

    const UserDefaults stored(folder.path(u"a.conf"_s));
    EXPECT_EQ(stored.text(u"cActionsDestination"_s), u"one"_s);
    EXPECT_EQ(stored.text(u"CActionsDestination"_s), u"two"_s);
}

TEST(UserDefaults, LastFromOneStartToTheNext)
{
    const TemporaryFolder folder;
    const QByteArray bytes("\0\x01\xFF,;", 5);
    {
        UserDefaults defaults(folder.path(u"new/a.conf"_s));
        defaults.set(u"text"_s, u"a, \"b\" é\n"_s);
        defaults.set(u"bytes"_s, bytes);
        defaults.set(u"number"_s, 7);
    }

    const UserDefaults defaults(folder.path(u"new/a.conf"_s));
    EXPECT_EQ(defaults.text(u"text"_s), u"a, \"b\" é\n"_s);
    EXPECT_EQ(defaults.value(u"bytes"_s)->toByteArray(), bytes);
    EXPECT_EQ(defaults.value(u"number"_s)->toInt(), 7);
}

TEST(UserDefaults, ForgetARemovedKey)
{
    const TemporaryFolder folder;
    UserDefaults defaults(folder.path(u"a.conf"_s));
    defaults.set(u"key"_s, u"value"_s);

    defaults.remove(u"key"_s);

    EXPECT_EQ(defaults.value(u"key"_s), std::nullopt);
}

TEST(UserDefaults, LiveInTheConfigurationFolder)
{
    const TemporaryFolder folder;
    const Environment configuration("XDG_CONFIG_HOME", folder.path().toUtf8());
    {
        UserDefaults defaults;
        defaults.set(u"key"_s, u"value"_s);
    }

    EXPECT_TRUE(TemporaryFolder::read(folder.path(u"Brenvaldo.conf"_s)).contains("key=value"));
}
