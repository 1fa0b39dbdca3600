// SPDX-License-Identifier: GPL-3.0-or-later
#include <imaging/resolution_rules.h>

#include <gtest/gtest.h>

#include <cmath>

using namespace brenvaldo::imaging;

TEST(DotsPerInchRoundedUp, IsSeventyTwoForOnePixelAPoint)
{
    EXPECT_EQ(dotsPerInchRoundedUp(72, 72), 72.0F);
}

TEST(DotsPerInchRoundedUp, RoundsUp)
{
    EXPECT_EQ(dotsPerInchRoundedUp(2992, 720), 300.0F); // 299.2
}

TEST(DotsPerInchRoundedUp, LosesTheNoiseOfTheDivisionInSinglePrecision)
{
    EXPECT_EQ(dotsPerInchRoundedUp(1001, 1001 * 72.0 / 300.0), 300.0F);
    EXPECT_EQ(dotsPerInchRoundedUp(4000, 4000 * 72.0 / 96.0 * (1 - 1e-12)), 96.0F);
}

TEST(DotsPerInchRoundedUp, IsNoNumberForAPictureWithoutSize)
{
    EXPECT_TRUE(std::isnan(dotsPerInchRoundedUp(0, 0)));
}

TEST(PointsAtResolution, RoundsEachSideUp)
{
    EXPECT_EQ(pointsAtResolution({1000, 501}, 300), QSizeF(240, 121)); // 120.24
}

TEST(PointsAtResolution, NarrowsBeforeItRounds)
{
    EXPECT_EQ(pointsAtResolution({3000, 3000}, 300 * (1 - 1e-12)), QSizeF(720, 720));
}
