// SPDX-License-Identifier: GPL-3.0-or-later
#include <gallery/page_rules.h>

#include <platform/foundation/literals.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace brenvaldo;
using namespace brenvaldo::gallery;

TEST(PageCount, IsNoneForPhotosThatFillTheirPagesExactly)
{
    EXPECT_EQ(pageCount(12, 12), 0);
    EXPECT_EQ(pageCount(24, 12), 0);
    EXPECT_EQ(pageCount(2000, 20), 0);
}

TEST(PageCount, CountsThePageThatIsNotFull)
{
    EXPECT_EQ(pageCount(13, 12), 2);
    EXPECT_EQ(pageCount(11, 12), 1);
    EXPECT_EQ(pageCount(1, 12), 1);
    EXPECT_EQ(pageCount(25, 12), 3);
    EXPECT_EQ(pageCount(1999, 20), 100);
}

TEST(ColumnCount, StaysBetweenOneAndTwenty)
{
    EXPECT_EQ(columnCount(25), 20);
    EXPECT_EQ(columnCount(21), 20);
    EXPECT_EQ(columnCount(20), 20);
    EXPECT_EQ(columnCount(4), 4);
    EXPECT_EQ(columnCount(1), 1);
    EXPECT_EQ(columnCount(0), 1);
    EXPECT_EQ(columnCount(-3), 1);
}

TEST(ColumnWidths, MultiplyTheOneBefore)
{
    const std::array<QString, 6> widths = {
        u"25.000000"_s, u"31.250000"_s, u"46.875000"_s, u"82.031250"_s, u"164.062500"_s, u"100"_s};
    EXPECT_EQ(columnWidths(4), widths);
}

TEST(ColumnWidths, BeginAtAWholeShare)
{
    EXPECT_EQ(columnWidths(6)[0], u"16.000000"_s);
    EXPECT_EQ(columnWidths(20)[0], u"5.000000"_s);
    EXPECT_EQ(columnWidths(3)[1], u"41.250000"_s);
}

TEST(ThumbnailHeight, FollowsTheWidthByTheRatio)
{
    EXPECT_EQ(thumbnailHeight(1, 450), 450);
    EXPECT_EQ(thumbnailHeight(2, 451), 300);
    EXPECT_EQ(thumbnailHeight(3, 451), 675);
    EXPECT_EQ(thumbnailHeight(4, 451), 150);
    EXPECT_EQ(thumbnailHeight(5, 451), 336);
    EXPECT_EQ(thumbnailHeight(6, 451), 600);
    EXPECT_EQ(thumbnailHeight(7, 100), 72);
    EXPECT_EQ(thumbnailHeight(8, 451), 252);
}

TEST(ThumbnailHeight, StaysWithoutARatio)
{
    EXPECT_EQ(thumbnailHeight(0, 450), std::nullopt);
    EXPECT_EQ(thumbnailHeight(9, 450), std::nullopt);
    EXPECT_EQ(thumbnailHeight(-1, 450), std::nullopt);
}
