// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/archives/bookmark.h>
#include <platform/foundation/literals.h>

#include "support/temporary_folder.h"
#include "support/text_printing.h"

#include <gtest/gtest.h>

#include <QDir>

using namespace brenvaldo;

TEST(Bookmark, GivesThePathBackWhileItExists)
{
    const test::TemporaryFolder folder;
    const QString path = folder.path(u"ph\u00f6tos \U0001F4F7"_s);
    ASSERT_TRUE(QDir().mkdir(path));

    const auto record = platform::archives::bookmarkFor(path);

    ASSERT_TRUE(record);
    EXPECT_EQ(platform::archives::pathOfBookmark(*record), path);
}

TEST(Bookmark, IsLostWithItsFolder)
{
    const test::TemporaryFolder folder;
    const QString path = folder.path(u"gone"_s);
    ASSERT_TRUE(QDir().mkdir(path));
    const auto record = platform::archives::bookmarkFor(path);
    ASSERT_TRUE(QDir().rmdir(path));

    ASSERT_TRUE(record);
    EXPECT_FALSE(platform::archives::pathOfBookmark(*record));
}

TEST(Bookmark, CannotBeMadeForWhatDoesNotExist)
{
    EXPECT_FALSE(platform::archives::bookmarkFor(QString()));
    EXPECT_FALSE(platform::archives::bookmarkFor(u"/no/such/folder"_s));
}

TEST(Bookmark, RefusesForeignAndDamagedRecords)
{
    const QByteArray record = platform::archives::bookmarkFor(u"/"_s).value_or(QByteArray());
    ASSERT_TRUE(platform::archives::pathOfBookmark(record));

    EXPECT_FALSE(platform::archives::pathOfBookmark(QByteArray()));
    EXPECT_FALSE(platform::archives::pathOfBookmark("/"));
    EXPECT_FALSE(platform::archives::pathOfBookmark(record.chopped(1)));
    EXPECT_FALSE(platform::archives::pathOfBookmark(QByteArray(record).replace("\x01", "\x02")));
    EXPECT_FALSE(platform::archives::pathOfBookmark(record + '\0'));
    EXPECT_FALSE(platform::archives::pathOfBookmark(record + "\xff\xfe"));
    EXPECT_FALSE(platform::archives::pathOfBookmark(record + QByteArray(100'000, 'x')));
}
