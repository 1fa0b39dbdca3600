// SPDX-License-Identifier: GPL-3.0-or-later
#include <files/photo_copy.h>

#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace brenvaldo::files;

TEST(CompressionFactor, IsATenthOfTheDigitUpToEight)
{
    EXPECT_DOUBLE_EQ(compressionFactor(u"1"_s), 0.1);
    EXPECT_DOUBLE_EQ(compressionFactor(u"8"_s), 0.8);
}

TEST(CompressionFactor, IsNineTenthsForAnyOtherTitle)
{
    for (const QString& title : {u"9"_s, u"0"_s, u"10"_s, u"12"_s, u""_s, u"best"_s})
        EXPECT_DOUBLE_EQ(compressionFactor(title), 0.9) << title.toStdString();
}
