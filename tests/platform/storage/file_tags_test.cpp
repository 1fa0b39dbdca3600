// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/storage/file_tags.h>

#include <support/temporary_folder.h>

#include <gtest/gtest.h>

#include <sys/xattr.h>

using namespace Qt::StringLiterals;
using brenvaldo::platform::storage::setFileTags;
using brenvaldo::test::TemporaryFolder;

TEST(FileTags, StandInTheAttributeOfTheDesktop)
{
    const TemporaryFolder folder;
    const QString path = folder.write(u"a"_s, "");

    EXPECT_TRUE(setFileTags(path, {u"old"_s}));
    EXPECT_TRUE(setFileTags(path, {u"one"_s, u"été"_s}));

    QByteArray value(64, '\0');
    value.truncate(::getxattr(path.toUtf8().constData(), "user.xdg.tags", value.data(), 64));
    EXPECT_EQ(value, "one,\xC3\xA9t\xC3\xA9");
}

TEST(FileTags, FailForAMissingFile)
{
    const TemporaryFolder folder;

    EXPECT_FALSE(setFileTags(folder.path(u"missing"_s), {u"one"_s}));
}
