// SPDX-License-Identifier: GPL-3.0-or-later
#include <imaging/fade_line.h>

#include <gtest/gtest.h>

using namespace brenvaldo::imaging;

TEST(FadeLine, RunsThroughTheMiddleInFourDirections)
{
    const auto line = [](int index) { return fadeLine({50, 40}, {100, 60}, index); };
    EXPECT_EQ(line(0), QLineF(0, 40, 100, 40));
    EXPECT_EQ(line(1), QLineF(50, 10, 50, 70));
    EXPECT_EQ(line(2), QLineF(100, 40, 0, 40));
    EXPECT_EQ(line(3), QLineF(50, 70, 50, 10));
    EXPECT_EQ(line(4), QLineF(50, 70, 50, 10));
    EXPECT_EQ(line(-1), QLineF(50, 70, 50, 10));
}
