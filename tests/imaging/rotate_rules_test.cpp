// SPDX-License-Identifier: GPL-3.0-or-later
#include <imaging/rotate_rules.h>

#include <support/case_name.h>
#include <support/geometry_printing.h>

#include <gtest/gtest.h>

#include <limits>

using namespace brenvaldo::imaging;
using brenvaldo::platform::graphics::PixelSize;
using brenvaldo::test::CaseName;

namespace {

struct CanvasCase
{
    const char* name;
    PixelSize photo;
    double degrees;
    PixelSize expected;
};

void PrintTo(const CanvasCase& canvasCase, std::ostream* out) { *out << canvasCase.name; }

class TurnedCanvas : public testing::TestWithParam<CanvasCase>
{
};

constexpr CanvasCase canvasCases[] = {
    {"NoTurn", {100, 50}, 0, {100, 50}},
    {"QuarterTurn", {4000, 3000}, 90, {3000, 4000}},
    {"QuarterTurnClockwise", {4000, 3000}, -90, {3000, 4000}},
    {"HalfTurn", {4000, 3000}, 180, {4000, 3000}},
    {"ThreeQuarterTurns", {47, 33}, 270, {33, 47}},
    {"DiagonalOfASquare", {1000, 1000}, 45, {1414, 1414}},
    {"SmallAngle", {400, 300}, 10, {446, 364}},
    {"SmallAngleClockwise", {400, 300}, -10, {446, 364}},
    {"BeyondAQuarter", {400, 300}, 100, {364, 446}},
    {"BeyondAFullTurn", {400, 300}, 370, {446, 364}},
};

} // namespace

TEST_P(TurnedCanvas, IsTheTruncatedBoxAroundThePhoto)
{
    const CanvasCase& row = GetParam();

    EXPECT_EQ(turnedCanvas(row.photo, row.degrees), row.expected);
}

INSTANTIATE_TEST_SUITE_P(Rows, TurnedCanvas, testing::ValuesIn(canvasCases), CaseName());

TEST(QuarterTurns, AreFoundInEveryMultipleOfNinetyDegrees)
{
    EXPECT_EQ(quarterTurns(0), QuarterTurns::None);
    EXPECT_EQ(quarterTurns(-360), QuarterTurns::None);
    EXPECT_EQ(quarterTurns(90), QuarterTurns::One);
    EXPECT_EQ(quarterTurns(450), QuarterTurns::One);
    EXPECT_EQ(quarterTurns(-180), QuarterTurns::Two);
    EXPECT_EQ(quarterTurns(-90), QuarterTurns::Three);
}

TEST(QuarterTurns, AreNotFoundInOtherAngles)
{
    EXPECT_FALSE(quarterTurns(89.5));
    EXPECT_FALSE(quarterTurns(45));
    EXPECT_FALSE(quarterTurns(std::numeric_limits<double>::infinity()));
}

TEST(CanvasOfPoints, CountsABegunPixelButNoNoise)
{
    EXPECT_EQ(canvasOfPoints({100.25, 50.0}), (PixelSize{101, 50}));
    EXPECT_EQ(canvasOfPoints({100.0000000001, 49.9999999999}), (PixelSize{100, 50}));
}
