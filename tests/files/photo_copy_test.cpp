// SPDX-License-Identifier: GPL-3.0-or-later
#include <files/photo_copy.h>

#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace brenvaldo::files;

TEST(CompressionFactor, IsATenthOfTheDigitUpToEight)
{
    EXPECT_DOUBLE_EQ(compressionFactor(u"1"_qs), 0.1);
    EXPECT_DOUBLE_EQ(compressionFactor(u"8"_qs), 0.8);
}

TEST(CompressionFactor, IsNineTenthsForAnyOtherTitle)
{
    for (const QString& title : {u"9"_qs, u"0"_qs, u"10"_qs, u"12"_qs, u""_qs, u"best"_qs})
        EXPECT_DOUBLE_EQ(compressionFactor(title), 0.9) << title.toStdString();
}
