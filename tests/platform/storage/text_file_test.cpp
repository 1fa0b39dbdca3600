// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/storage/text_file.h>

#include <support/temporary_folder.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

using brenvaldo::platform::storage::readTextFile;
using brenvaldo::test::TemporaryFolder;

TEST(TextFile, IsReadAsUtf8)
{
    const TemporaryFolder folder;

    EXPECT_EQ(readTextFile(folder.write(u"a"_qs, "\xC3\xA9\n")), u"é\n"_qs);
    EXPECT_EQ(readTextFile(folder.write(u"b"_qs, "")), u""_qs);
}

TEST(TextFile, IsReadWithoutItsByteOrderMark)
{
    const TemporaryFolder folder;

    EXPECT_EQ(
        readTextFile(folder.write(
            u"a"_qs,
            "\xEF\xBB\xBF"
            "a"
        )),
        u"a"_qs
    );
}

TEST(TextFile, IsNothingWhenItIsNoText)
{
    const TemporaryFolder folder;

    EXPECT_EQ(readTextFile(folder.write(u"a"_qs, "a\xFFz")), std::nullopt);
    EXPECT_EQ(readTextFile(folder.write(u"b"_qs, "cut \xC3")), std::nullopt);
    EXPECT_EQ(readTextFile(folder.path(u"missing"_qs)), std::nullopt);
    EXPECT_EQ(readTextFile(folder.path()), std::nullopt);
}
