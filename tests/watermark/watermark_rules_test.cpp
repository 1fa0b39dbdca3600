// SPDX-License-Identifier: GPL-3.0-or-later
#include <watermark/watermark_rules.h>

#include <support/case_name.h>

#include <gtest/gtest.h>

using namespace brenvaldo;
using namespace brenvaldo::watermark;

namespace {

struct OpacityCase
{
    const char* name;
    int percent;
    double opacity;

    friend void PrintTo(const OpacityCase& row, std::ostream* out) { *out << row.name; }
};

class OpacityOfPercent : public testing::TestWithParam<OpacityCase>
{
};

} // namespace

TEST_P(OpacityOfPercent, FollowsTheRule)
{
    EXPECT_DOUBLE_EQ(opacityOfPercent(GetParam().percent), GetParam().opacity);
}

INSTANTIATE_TEST_SUITE_P(
    Table,
    OpacityOfPercent,
    testing::Values(
        OpacityCase{"ZeroIsOpaque", 0, 1.0},
        OpacityCase{"BelowZero", -5, 0.1},
        OpacityCase{"OneIsNearlyInvisible", 1, 0.01},
        OpacityCase{"Half", 50, 0.5},
        OpacityCase{"Hundred", 100, 1.0},
        OpacityCase{"AboveHundred", 101, 1.0}
    ),
    brenvaldo::test::CaseName()
);

TEST(StrokeWidth, HasNoIndexThatGivesTwo)
{
    EXPECT_DOUBLE_EQ(strokeWidthOfIndex(0), 0.5);
    EXPECT_DOUBLE_EQ(strokeWidthOfIndex(1), 1.0);
    EXPECT_DOUBLE_EQ(strokeWidthOfIndex(2), 3.0);
    EXPECT_DOUBLE_EQ(strokeWidthOfIndex(3), 5.0);
    EXPECT_DOUBLE_EQ(strokeWidthOfIndex(4), 7.0);
    EXPECT_DOUBLE_EQ(strokeWidthOfIndex(-1), 7.0);
}

namespace {

constexpr platform::graphics::PixelSize photo{.width = 101, .height = 61};
constexpr platform::graphics::PixelSize layer{.width = 20, .height = 10};

struct AnchorCase
{
    const char* name;
    int anchor;
    int angle;
    QPoint origin;

    friend void PrintTo(const AnchorCase& row, std::ostream* out) { *out << row.name; }
};

class AnchoredOrigin : public testing::TestWithParam<AnchorCase>
{
};

} // namespace

TEST_P(AnchoredOrigin, FollowsTheTable)
{
    const Placement placement{
        .anchor = GetParam().anchor, .xOffset = 7, .yOffset = 3, .angle = GetParam().angle};

    EXPECT_EQ(anchoredOrigin(placement, photo, layer), GetParam().origin)
        << anchoredOrigin(placement, photo, layer).x() << ", "
        << anchoredOrigin(placement, photo, layer).y();
}

INSTANTIATE_TEST_SUITE_P(
    Table,
    AnchoredOrigin,
    testing::Values(
        AnchorCase{"TopLeftUpright", 0, 0, {7, 54}},
        AnchorCase{"TopCenterUpright", 1, 0, {47, 54}},
        AnchorCase{"TopRightUpright", 2, 0, {88, 54}},
        AnchorCase{"MiddleLeftUpright", 3, 0, {7, 28}},
        AnchorCase{"CenterUpright", 4, 0, {47, 28}},
        AnchorCase{"MiddleRightUpright", 5, 0, {88, 28}},
        AnchorCase{"BottomLeftUpright", 6, 0, {7, 3}},
        AnchorCase{"BottomCenterUpright", 7, 0, {47, 3}},
        AnchorCase{"BottomRightUpright", 8, 0, {88, 3}},
        AnchorCase{"TopLeftPositive", 0, 30, {3, 44}},
        AnchorCase{"TopCenterPositive", 1, 30, {43, 44}},
        AnchorCase{"TopRightPositive", 2, 30, {84, 44}},
        AnchorCase{"MiddleLeftPositive", 3, 30, {3, 18}},
        AnchorCase{"CenterPositive", 4, 30, {43, 18}},
        AnchorCase{"MiddleRightPositive", 5, 30, {84, 18}},
        AnchorCase{"BottomLeftPositiveBreaksTheRule", 6, 30, {-3, 7}},
        AnchorCase{"BottomCenterPositive", 7, 30, {43, -7}},
        AnchorCase{"BottomRightPositive", 8, 30, {84, -7}},
        AnchorCase{"TopLeftNegativeBreaksTheRule", 0, -30, {-3, 44}},
        AnchorCase{"TopCenterNegative", 1, -30, {37, 58}},
        AnchorCase{"TopRightNegative", 2, -30, {78, 58}},
        AnchorCase{"MiddleLeftNegative", 3, -30, {-3, 32}},
        AnchorCase{"CenterNegative", 4, -30, {37, 32}},
        AnchorCase{"MiddleRightNegative", 5, -30, {78, 32}},
        AnchorCase{"BottomLeftNegative", 6, -30, {-3, 7}},
        AnchorCase{"BottomCenterNegative", 7, -30, {37, 7}},
        AnchorCase{"BottomRightNegative", 8, -30, {78, 7}}
    ),
    brenvaldo::test::CaseName()
);

TEST(TileSpan, CoversOneTileMoreThanFits)
{
    EXPECT_EQ(tileSpan(1000, 300), (TileSpan{.length = 1200, .overhang = 100}));
}

TEST(TileSpan, CoversOneTileMoreEvenWhenTilesFitExactly)
{
    EXPECT_EQ(tileSpan(900, 300), (TileSpan{.length = 1200, .overhang = 150}));
}

TEST(TileSpan, TruncatesTheOverhang)
{
    EXPECT_EQ(tileSpan(1001, 300), (TileSpan{.length = 1200, .overhang = 99}));
}

TEST(TileSpan, ComparesThePhotoWithTheNumberOfTiles)
{
    EXPECT_EQ(tileSpan(7, 1), (TileSpan{.length = 7, .overhang = 0}));
    EXPECT_EQ(tileSpan(1, 300), (TileSpan{.length = 1, .overhang = 0}));
    EXPECT_EQ(tileSpan(2, 300), (TileSpan{.length = 300, .overhang = 149}));
}

TEST(TileCell, PutsHalfOfTheOffsetsBeforeTheLayer)
{
    const TileCell cell = tileCell({.width = 20, .height = 10}, 7, -3);

    EXPECT_EQ(cell.size, (platform::graphics::PixelSize{.width = 27, .height = 7}));
    EXPECT_EQ(cell.layerOrigin, QPoint(3, -1));
}
