// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/foundation/user_defaults.h>

#include <support/environment.h>
#include <support/temporary_folder.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

using brenvaldo::platform::UserDefaults;
using brenvaldo::test::Environment;
using brenvaldo::test::TemporaryFolder;

TEST(UserDefaults, AnswerNothingForAKeyThatWasNeverSet)
{
    const TemporaryFolder folder;
    const UserDefaults defaults(folder.path(u"a.conf"_qs));

    EXPECT_EQ(defaults.value(u"key"_qs), std::nullopt);
    EXPECT_EQ(defaults.text(u"key"_qs), u""_qs);
}

TEST(UserDefaults, TellKeysApartByCase)
{
    const TemporaryFolder folder;
    UserDefaults defaults(folder.path(u"a.conf"_qs));

    defaults.set(u"cActionsDestination"_qs, u"one"_qs);
    defaults.set(u"CActionsDestination"_qs, u"two"_qs);
    defaults.synchronize();

    const UserDefaults stored(folder.path(u"a.conf"_qs));
    EXPECT_EQ(stored.text(u"cActionsDestination"_qs), u"one"_qs);
    EXPECT_EQ(stored.text(u"CActionsDestination"_qs), u"two"_qs);
}

TEST(UserDefaults, LastFromOneStartToTheNext)
{
    const TemporaryFolder folder;
    const QByteArray bytes("\0\x01\xFF,;", 5);
    {
        UserDefaults defaults(folder.path(u"new/a.conf"_qs));
        defaults.set(u"text"_qs, u"a, \"b\" é\n"_qs);
        defaults.set(u"bytes"_qs, bytes);
        defaults.set(u"number"_qs, 7);
    }

    const UserDefaults defaults(folder.path(u"new/a.conf"_qs));
    EXPECT_EQ(defaults.text(u"text"_qs), u"a, \"b\" é\n"_qs);
    EXPECT_EQ(defaults.value(u"bytes"_qs)->toByteArray(), bytes);
    EXPECT_EQ(defaults.value(u"number"_qs)->toInt(), 7);
}

TEST(UserDefaults, ForgetARemovedKey)
{
    const TemporaryFolder folder;
    UserDefaults defaults(folder.path(u"a.conf"_qs));
    defaults.set(u"key"_qs, u"value"_qs);

    defaults.remove(u"key"_qs);

    EXPECT_EQ(defaults.value(u"key"_qs), std::nullopt);
}

TEST(UserDefaults, LiveInTheConfigurationFolder)
{
    const TemporaryFolder folder;
    const Environment configuration("XDG_CONFIG_HOME", folder.path().toUtf8());
    {
        UserDefaults defaults;
        defaults.set(u"key"_qs, u"value"_qs);
    }

    EXPECT_TRUE(TemporaryFolder::read(folder.path(u"Brenvaldo.conf"_qs)).contains("key=value"));
}
