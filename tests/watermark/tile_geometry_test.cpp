// SPDX-License-Identifier: GPL-3.0-or-later
#include <watermark/tile_geometry.h>

#include <support/geometry_printing.h>

#include <gtest/gtest.h>

using namespace brenvaldo::watermark;

TEST(TiledArea, IsOneTileLongerThanFitsAndCentred)
{
    // 4 tiles of 30 are 120, 19 more than the photo is wide; 3 tiles of 20 cover 50 pixels.
    EXPECT_EQ(tiledArea({30, 20}, {101, 50}), QRect(-9, -5, 120, 60));
}

TEST(TileCellOnThePhoto, StandsAtTheBottomLeftOfTheTiledArea)
{
    const TileCell cell = tileCell({30, 20}, 8, 6);

    EXPECT_EQ(cellCorner(cell, {30, 20}, {101, 50}), QPoint(-9, 55 - 26));
    EXPECT_EQ(overlayInCell(cell, {30, 20}), QPoint(4, 3));
}

TEST(LastStep, LiesInFrontOfTheEdge)
{
    EXPECT_EQ(lastStepBefore(25, 0, 10), -5);
    EXPECT_EQ(lastStepBefore(20, 0, 10), 0);
    EXPECT_EQ(lastStepBefore(-3, -40, 10), -43);
}

TEST(Stripes, AreAllThatIsLeftOfTheWhole)
{
    const QRect whole(0, 0, 100, 80);

    EXPECT_EQ(
        stripesAround({10, 20, 30, 40}, whole),
        (QList<QRect>{{0, 0, 100, 20}, {0, 60, 100, 20}, {0, 20, 10, 40}, {40, 20, 60, 40}})
    );
    EXPECT_EQ(stripesAround({0, 0, 100, 70}, whole), (QList<QRect>{{0, 70, 100, 10}}));
    EXPECT_EQ(stripesAround(whole, whole), QList<QRect>());
    EXPECT_EQ(stripesAround({}, whole), (QList<QRect>{whole}));
}
