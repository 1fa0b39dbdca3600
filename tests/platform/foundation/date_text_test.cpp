// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/foundation/date_text.h>

#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using brenvaldo::platform::dateTextForFileName;

TEST(DateTextForFileName, HoldsNoCharacterThatANameMayNot)
{
    EXPECT_EQ(
        dateTextForFileName(QDateTime({2026, 11, 15}, {10, 44, 33})), u"15-Nov-2026T10-44-33"_s
    );
}

TEST(DateTextForFileName, FillsTheTimeButNotTheDay)
{
    EXPECT_EQ(dateTextForFileName(QDateTime({2026, 11, 5}, {9, 5, 0})), u"5-Nov-2026T09-05-00"_s);
}

TEST(DateTextForFileName, NamesEachMonthWithThreeLetters)
{
    QStringList months;
    for (int month = 1; month <= 12; ++month)
        months += dateTextForFileName(QDateTime({2026, month, 1}, {0, 0})).section(u'-', 1, 1);

    EXPECT_EQ(months.join(u' '), u"Jan Feb Mar Apr May Jun Jul Aug Sep Oct Nov Dec"_s);
}

TEST(DateTextForFileName, IsLocalTime)
{
    const QDateTime local({2026, 11, 15}, {10, 44, 33});

    EXPECT_EQ(dateTextForFileName(local.toUTC()), dateTextForFileName(local));
}

TEST(DateTextForFileName, IsEmptyWithoutADate) { EXPECT_EQ(dateTextForFileName({}), u""_s); }
