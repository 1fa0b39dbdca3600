// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/archives/bookmark.h>

#include "support/temporary_folder.h"
#include "support/text_printing.h"

#include <gtest/gtest.h>

#include <QDir>

using namespace brenvaldo;

TEST(Bookmark, GivesThePathBackWhileItExists)
{
    const test::TemporaryFolder folder;
    const QString path = folder.path(QStringLiteral("ph\u00f6tos \U0001F4F7"));
    ASSERT_TRUE(QDir().mkdir(path));

    const auto record = platform::bookmarkFor(path);

    ASSERT_TRUE(record);
    EXPECT_EQ(platform::pathOfBookmark(*record), path);
}

TEST(Bookmark, IsLostWithItsFolder)
{
    const test::TemporaryFolder folder;
    const QString path = folder.path(QStringLiteral("gone"));
    ASSERT_TRUE(QDir().mkdir(path));
    const auto record = platform::bookmarkFor(path);
    ASSERT_TRUE(QDir().rmdir(path));

    ASSERT_TRUE(record);
    EXPECT_FALSE(platform::pathOfBookmark(*record));
}

TEST(Bookmark, CannotBeMadeForWhatDoesNotExist)
{
    EXPECT_FALSE(platform::bookmarkFor(QString()));
    EXPECT_FALSE(platform::bookmarkFor(QStringLiteral("/no/such/folder")));
}

TEST(Bookmark, RefusesForeignAndDamagedRecords)
{
    const QByteArray record = platform::bookmarkFor(QStringLiteral("/")).value_or(QByteArray());
    ASSERT_TRUE(platform::pathOfBookmark(record));

    EXPECT_FALSE(platform::pathOfBookmark(QByteArray()));
    EXPECT_FALSE(platform::pathOfBookmark("/"));
    EXPECT_FALSE(platform::pathOfBookmark(record.chopped(1)));
    EXPECT_FALSE(platform::pathOfBookmark(QByteArray(record).replace("\x01", "\x02")));
    EXPECT_FALSE(platform::pathOfBookmark(record + '\0'));
    EXPECT_FALSE(platform::pathOfBookmark(record + "\xff\xfe"));
    EXPECT_FALSE(platform::pathOfBookmark(record + QByteArray(100'000, 'x')));
}
