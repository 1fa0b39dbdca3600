// SPDX-License-Identifier: GPL-3.0-or-later
#include <imaging/crop_rules.h>

#include <platform/foundation/literals.h>

#include <support/case_name.h>
#include <support/geometry_printing.h>

#include <gtest/gtest.h>

#include <limits>

using namespace brenvaldo;
using namespace brenvaldo::imaging;
using brenvaldo::test::CaseName;
using platform::graphics::PixelRect;
using platform::graphics::PixelSize;

namespace {

constexpr PixelSize wholePhoto = {1000, 800};

CropSettings cuttingOff(const QString& type, std::int64_t value)
{
    return {.size = {11, 22}, .cutOff = value, .anchor = 4, .cropType = type};
}

struct AnchorCase
{
    const char* name;
    int anchor;
    QPoint origin;
    QPoint drawn;
};

void PrintTo(const AnchorCase& row, std::ostream* out) { *out << row.name; }

class CropAnchors : public testing::TestWithParam<AnchorCase>
{
};

struct OutlineCase
{
    const char* name;
    PixelSize photo;
    float width;
    double dash;
};

void PrintTo(const OutlineCase& row, std::ostream* out) { *out << row.name; }

class CropOutline : public testing::TestWithParam<OutlineCase>
{
};

} // namespace

TEST(CropSize, IsTheOneGivenForWidthAndHeight)
{
    EXPECT_EQ(cropSize(cuttingOff(u"W x H"_s, 25), wholePhoto), (PixelSize{11, 22}));
    EXPECT_EQ(cropSize(cuttingOff(u"W x H"_s, 150), wholePhoto), (PixelSize{11, 22}));
}

TEST(CropSize, IsWhatAPercentageLeaves)
{
    EXPECT_EQ(cropSize(cuttingOff(u"%"_s, 25), wholePhoto), (PixelSize{750, 600}));
    EXPECT_EQ(cropSize(cuttingOff(u"%"_s, 0), wholePhoto), (PixelSize{1000, 800}));
    EXPECT_EQ(cropSize(cuttingOff(u"%"_s, 100), wholePhoto), (PixelSize{0, 0}));
    EXPECT_EQ(cropSize(cuttingOff(u"%"_s, 33), {47, 33}), (PixelSize{31, 22}));
    EXPECT_EQ(cropSize(cuttingOff(u"%"_s, -50), wholePhoto), (PixelSize{1500, 1200}));
}

TEST(CropSize, TakesAPercentageOf101AndMoreAsNone)
{
    EXPECT_EQ(cropSize(cuttingOff(u"%"_s, 101), wholePhoto), wholePhoto);
    EXPECT_EQ(cropSize(cuttingOff(u"%"_s, 150), wholePhoto), wholePhoto);
    EXPECT_TRUE(cutsOffTooMuch(cuttingOff(u"%"_s, 101)));
    EXPECT_FALSE(cutsOffTooMuch(cuttingOff(u"%"_s, 100)));
    EXPECT_FALSE(cutsOffTooMuch(cuttingOff(u"px"_s, 101)));
    EXPECT_FALSE(cutsOffTooMuch(cuttingOff(u"W x H"_s, 101)));
}

TEST(CropSize, WrapsAPercentageAt32Bits)
{
    EXPECT_EQ(cropSize(cuttingOff(u"%"_s, -99900), {100000, 10}), (PixelSize{14100654, 10000}));
}

TEST(CropSize, LosesTheSamePixelsOfBothSidesForAnyOtherType)
{
    EXPECT_EQ(cropSize(cuttingOff(u"px"_s, 100), wholePhoto), (PixelSize{900, 700}));
    EXPECT_EQ(cropSize(cuttingOff(u""_s, 100), wholePhoto), (PixelSize{900, 700}));
    EXPECT_EQ(cropSize(cuttingOff(u"px"_s, 900), wholePhoto), (PixelSize{100, -100}));
}

TEST_P(CropAnchors, PlaceTheRectangle)
{
    const AnchorCase& row = GetParam();
    constexpr PixelSize size = {701, 501};

    EXPECT_EQ(cropOrigin(wholePhoto, size, row.anchor, {7, 3}), row.origin);
    EXPECT_EQ(drawnCropOrigin(wholePhoto, size, row.anchor, {7, 3}), row.drawn);
}

INSTANTIATE_TEST_SUITE_P(
    Rows,
    CropAnchors,
    testing::Values(
        AnchorCase{"TopLeft", 0, {7, 3}, {7, 296}},
        AnchorCase{"TopCentre", 1, {156, 3}, {156, 296}},
        AnchorCase{"TopRight", 2, {306, 3}, {306, 296}},
        AnchorCase{"MiddleLeft", 3, {7, 152}, {7, 146}},
        AnchorCase{"Centre", 4, {156, 152}, {156, 146}},
        AnchorCase{"MiddleRight", 5, {306, 152}, {306, 146}},
        AnchorCase{"BottomLeft", 6, {7, 302}, {7, -3}},
        AnchorCase{"BottomCentre", 7, {156, 302}, {156, -3}},
        AnchorCase{"BottomRight", 8, {306, 302}, {306, -3}}
    ),
    CaseName()
);

TEST(CropOrigin, IsTruncatedTowardsZeroWhereTheRectangleIsLarger)
{
    EXPECT_EQ(cropOrigin({10, 10}, {15, 17}, 4, {}), QPoint(-2, -3));
    EXPECT_EQ(cropOrigin(wholePhoto, {750, 600}, 4, {}), QPoint(125, 100));
}

TEST(CropOrigin, IsNotKnownForOtherAnchors)
{
    for (const int anchor : {-1, 9, 100}) {
        EXPECT_EQ(cropOrigin(wholePhoto, {10, 10}, anchor, {}), std::nullopt);
        EXPECT_EQ(drawnCropOrigin(wholePhoto, {10, 10}, anchor, {}), std::nullopt);
    }
}

TEST(CropOrigin, WrapsAt32Bits)
{
    constexpr std::int64_t largest = std::numeric_limits<int>::max();
    constexpr int lowest = std::numeric_limits<int>::min();

    EXPECT_EQ(cropOrigin({1, 1}, {0, 0}, 8, {largest, largest}), QPoint(lowest, lowest));
    EXPECT_EQ(drawnCropOrigin({1, 1}, {0, 0}, 6, {0, lowest}), QPoint(0, lowest));
}

TEST(CoveredPixels, LieBeforeTheOriginOfANegativeSize)
{
    EXPECT_EQ(coveredPixels({5, 6}, {10, 20}), (PixelRect{5, 6, 10, 20}));
    EXPECT_EQ(coveredPixels({75, 75}, {-50, -70}), (PixelRect{25, 5, 50, 70}));
}

TEST_P(CropOutline, GrowsWithThePhoto)
{
    const OutlineCase& row = GetParam();

    EXPECT_EQ(cropOutlineWidth(row.photo), row.width);
    EXPECT_EQ(cropDashLength(row.width), row.dash);
}

INSTANTIATE_TEST_SUITE_P(
    Rows,
    CropOutline,
    testing::Values(
        OutlineCase{"Landscape6001", {6001, 100}, 20, 40},
        OutlineCase{"Landscape6000", {6000, 100}, 15, 40},
        OutlineCase{"Landscape5500", {5500, 3000}, 15, 40},
        OutlineCase{"Landscape5001", {5001, 100}, 15, 40},
        OutlineCase{"Landscape5000", {5000, 100}, 10, 15},
        OutlineCase{"Landscape4001", {4001, 100}, 10, 15},
        OutlineCase{"Landscape4000", {4000, 100}, 7, 15},
        OutlineCase{"Landscape3001", {3001, 100}, 7, 15},
        OutlineCase{"Landscape3000", {3000, 100}, 5, 15},
        OutlineCase{"Landscape2001", {2001, 100}, 5, 15},
        OutlineCase{"Landscape2000", {2000, 100}, 3, 15},
        OutlineCase{"Landscape1001", {1001, 100}, 3, 15},
        OutlineCase{"Landscape1000", {1000, 100}, 2, 15},
        OutlineCase{"Portrait6001", {100, 6001}, 9, 15},
        OutlineCase{"Portrait6000", {100, 6000}, 8, 15},
        OutlineCase{"Portrait5500", {3000, 5500}, 8, 15},
        OutlineCase{"Portrait5001", {100, 5001}, 8, 15},
        OutlineCase{"Portrait5000", {100, 5000}, 5, 15},
        OutlineCase{"Portrait4001", {100, 4001}, 5, 15},
        OutlineCase{"Portrait4000", {100, 4000}, 4, 15},
        OutlineCase{"Portrait3001", {100, 3001}, 4, 15},
        OutlineCase{"Portrait3000", {100, 3000}, 3, 15},
        OutlineCase{"Portrait2001", {100, 2001}, 3, 15},
        OutlineCase{"Portrait2000", {100, 2000}, 3, 15},
        OutlineCase{"Portrait1001", {100, 1001}, 3, 15},
        OutlineCase{"Portrait1000", {100, 1000}, 2, 15},
        OutlineCase{"Square7000", {7000, 7000}, 9, 15}
    ),
    CaseName()
);

TEST(CropDashes, FollowTheLineWidth)
{
    EXPECT_EQ(cropDashLength(31), 120);
    EXPECT_EQ(cropDashLength(30), 90);
    EXPECT_EQ(cropDashLength(21), 90);
    EXPECT_EQ(cropDashLength(20), 40);
    EXPECT_EQ(cropDashLength(11), 40);
    EXPECT_EQ(cropDashLength(10), 15);
}
