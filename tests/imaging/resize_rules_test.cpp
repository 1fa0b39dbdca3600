// SPDX-License-Identifier: GPL-3.0-or-later
#include <imaging/resize_rules.h>

#include <support/case_name.h>
#include <support/geometry_printing.h>

#include <gtest/gtest.h>

using namespace brenvaldo::imaging;
using brenvaldo::platform::graphics::PixelRect;
using brenvaldo::platform::graphics::PixelSize;
using brenvaldo::test::CaseName;

namespace {

constexpr PixelSize unreadable{0, 0};

struct MaximumCase
{
    const char* name;
    PixelSize photo;
    int value;
    MaximumType type;
    PixelSize expected;
};

void PrintTo(const MaximumCase& maximumCase, std::ostream* out) { *out << maximumCase.name; }

class MaximumTarget : public testing::TestWithParam<MaximumCase>
{
};

constexpr MaximumCase maximumCases[] = {
    {"Width", {4000, 3000}, 1000, MaximumType::Width, {1000, 750}},
    {"WidthOfAPortrait", {3000, 4000}, 1000, MaximumType::Width, {1000, 1333}},
    {"Height", {4000, 3000}, 1000, MaximumType::Height, {1333, 1000}},
    {"HeightOfAPortrait", {3000, 4000}, 1000, MaximumType::Height, {750, 1000}},
    {"LongestSideOfALandscape", {4000, 3000}, 1000, MaximumType::LongestSide, {1000, 750}},
    {"LongestSideOfAPortrait", {3000, 4000}, 1000, MaximumType::LongestSide, {750, 1000}},
    {"LongestSideOfASquare", {1000, 1000}, 100, MaximumType::LongestSide, {100, 100}},
    {"Percentage", {4000, 3000}, 33, MaximumType::Percentage, {1320, 990}},
    {"PercentageTruncates", {47, 33}, 33, MaximumType::Percentage, {15, 10}},
    {"PercentageEnlarges", {400, 300}, 250, MaximumType::Percentage, {1000, 750}},
    {"LongestSideEnlarges", {400, 300}, 4000, MaximumType::LongestSide, {4000, 3000}},
    {"OtherSideTruncates", {47, 33}, 10, MaximumType::Width, {10, 7}},
    {"OtherSideBelowOnePixel", {4000, 10}, 100, MaximumType::Width, {100, 0}},
    {"OtherSideTruncatesRoundingErrors", {3000, 2000}, 969, MaximumType::Width, {969, 645}},
};

struct NoContextCase
{
    const char* name;
    PixelSize photo;
    int value;
    MaximumType type;
};

void PrintTo(const NoContextCase& noContextCase, std::ostream* out) { *out << noContextCase.name; }

class MaximumTargetWithoutContext : public testing::TestWithParam<NoContextCase>
{
};

constexpr NoContextCase noContextCases[] = {
    {"ValueOfZero", {4000, 3000}, 0, MaximumType::LongestSide},
    {"ValueOfZeroPercent", {4000, 3000}, 0, MaximumType::Percentage},
    {"NegativeValue", {4000, 3000}, -100, MaximumType::Width},
    {"ProductThatWrapsBelowZero", {4000, 3000}, 30'000'000, MaximumType::Width},
    {"UnreadableByWidth", unreadable, 1000, MaximumType::Width},
    {"UnreadableByHeight", unreadable, 1000, MaximumType::Height},
    {"UnreadableByLongestSide", unreadable, 1000, MaximumType::LongestSide},
    {"UnreadableByPercentage", unreadable, 50, MaximumType::Percentage},
};

struct CoverCase
{
    const char* name;
    PixelSize photo;
    PixelSize box;
    PixelSize scaled;
    PixelRect cut;
};

void PrintTo(const CoverCase& coverCase, std::ostream* out) { *out << coverCase.name; }

class CoverAndCut : public testing::TestWithParam<CoverCase>
{
};

constexpr CoverCase coverCases[] = {
    {"LandscapeIntoASquare", {4000, 3000}, {1000, 1000}, {1333, 1000}, {166, 0, 1000, 1000}},
    {"PortraitIntoALandscape", {3000, 4000}, {1000, 500}, {1000, 1333}, {0, 416, 1000, 500}},
    {"SameProportions", {4000, 3000}, {400, 300}, {400, 300}, {0, 0, 400, 300}},
    {"ProportionsThatDivideInexactly", {19, 19}, {5, 5}, {5, 5}, {0, 0, 5, 5}},
    {"SquareIntoAPortrait", {100, 100}, {30, 40}, {40, 40}, {5, 0, 30, 40}},
    {"OddExcessStaysAtTheRight", {40, 10}, {3, 2}, {8, 2}, {2, 0, 3, 2}},
    {"Enlarges", {40, 30}, {400, 400}, {533, 400}, {66, 0, 400, 400}},
};

} // namespace

TEST(MaximumTypeAt, TakesAllOtherIndexesAsAPercentage)
{
    EXPECT_EQ(maximumTypeAt(0), MaximumType::Width);
    EXPECT_EQ(maximumTypeAt(1), MaximumType::Height);
    EXPECT_EQ(maximumTypeAt(2), MaximumType::LongestSide);
    EXPECT_EQ(maximumTypeAt(3), MaximumType::Percentage);
    EXPECT_EQ(maximumTypeAt(9), MaximumType::Percentage);
    EXPECT_EQ(maximumTypeAt(-1), MaximumType::Percentage);
}

TEST_P(MaximumTarget, FollowsTheTable)
{
    const MaximumCase& row = GetParam();

    EXPECT_EQ(maximumTarget(row.photo, row.value, row.type), row.expected);
}

INSTANTIATE_TEST_SUITE_P(Rows, MaximumTarget, testing::ValuesIn(maximumCases), CaseName());

TEST_P(MaximumTargetWithoutContext, CannotBeDrawn)
{
    const NoContextCase& row = GetParam();

    EXPECT_FALSE(givesContext(maximumTarget(row.photo, row.value, row.type)));
}

INSTANTIATE_TEST_SUITE_P(
    Rows, MaximumTargetWithoutContext, testing::ValuesIn(noContextCases), CaseName()
);

TEST(MaximumTarget, WrapsTheProductWithAHundredAtThirtyTwoBits)
{
    // 42 949 673 times 100 is 2^32 + 4.
    EXPECT_EQ(maximumTarget({4, 300}, 42'949'673, MaximumType::Width).height, 3);
}

TEST_P(CoverAndCut, FollowsTheLargerFactor)
{
    const CoverCase& row = GetParam();

    const PixelSize scaled = coveringSize(row.photo, row.box);

    EXPECT_EQ(scaled, row.scaled);
    EXPECT_EQ(centredCut(scaled, row.box), row.cut);
}

INSTANTIATE_TEST_SUITE_P(Rows, CoverAndCut, testing::ValuesIn(coverCases), CaseName());

TEST(CoverAndCut, FindsNoContextForAnUnreadablePhoto)
{
    EXPECT_FALSE(givesContext(coveringSize(unreadable, {1000, 500})));
}

TEST(CoverAndCut, TruncatesNegativeOffsetsTowardZero)
{
    EXPECT_EQ(centredCut({9, 8}, {10, 11}), (PixelRect{0, -1, 10, 11}));
}

TEST(GivesContext, AsksForPixelsWithinTheLimits)
{
    EXPECT_TRUE(givesContext({1, 1}));
    EXPECT_TRUE(givesContext({32'768, 32'768}));
    EXPECT_TRUE(givesContext({10'000'000, 1}));
    EXPECT_FALSE(givesContext({0, 1}));
    EXPECT_FALSE(givesContext({1, -1}));
    EXPECT_FALSE(givesContext({32'768, 32'769}));
    EXPECT_FALSE(givesContext({10'000'001, 1}));
}
