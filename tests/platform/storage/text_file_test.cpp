// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/storage/text_file.h>

#include <support/temporary_folder.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

#include <sys/stat.h>

using namespace Qt::StringLiterals;
using brenvaldo::platform::storage::readTextFile;
using brenvaldo::test::TemporaryFolder;

TEST(TextFile, IsReadAsUtf8)
{
    const TemporaryFolder folder;

    EXPECT_EQ(readTextFile(folder.write(u"a"_s, "\xC3\xA9\n")), u"é\n"_s);
    EXPECT_EQ(readTextFile(folder.write(u"b"_s, "")), u""_s);
}

TEST(TextFile, IsReadWithoutItsByteOrderMark)
{
    const TemporaryFolder folder;

    EXPECT_EQ(
        readTextFile(folder.write(
            u"a"_s,
            "\xEF\xBB\xBF"
            "a"
        )),
        u"a"_s
    );
}

TEST(TextFile, IsNothingWhenItIsNoText)
{
    const TemporaryFolder folder;

    EXPECT_EQ(readTextFile(folder.write(u"a"_s, "a\xFFz")), std::nullopt);
    EXPECT_EQ(readTextFile(folder.write(u"b"_s, "cut \xC3")), std::nullopt);
    EXPECT_EQ(readTextFile(folder.path(u"missing"_s)), std::nullopt);
    EXPECT_EQ(readTextFile(folder.path()), std::nullopt);
}

TEST(TextFile, IsNothingWhereAPipeStands)
{
    const TemporaryFolder folder;
    const QString path = folder.path(u"a.c-action"_s);
    ASSERT_EQ(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);

    EXPECT_EQ(readTextFile(path), std::nullopt);
}
