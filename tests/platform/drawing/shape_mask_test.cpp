// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/drawing/shape_mask.h>
#include <platform/drawing/stroke.h>

#include <gmock/gmock.h>

#include <ostream>

namespace brenvaldo::platform::drawing {

void PrintTo(const ShapeMask::Run& run, std::ostream* out)
{
    *out << run.begin << "-" << run.end << " at " << int(run.coverage);
}

} // namespace brenvaldo::platform::drawing

using namespace brenvaldo::platform::drawing;
using testing::ElementsAre;
using Covered = ShapeMask::Run;

namespace {

QPainterPath rectangle(const QRectF& rect)
{
    QPainterPath path;
    path.addRect(rect);
    return path;
}

std::vector<Covered> row(const ShapeMask& mask, int y)
{
    const auto runs = mask.row(y);
    return {runs.begin(), runs.end()};
}

std::vector<Covered> strokedRow(const Stroke& stroke, int y)
{
    QPainterPath line({10, 10});
    line.lineTo(30, 10);
    line.lineTo(30, 30);
    return row(ShapeMask(stroked(line, stroke), {40, 40}), y);
}

} // namespace

TEST(ShapeMask, HoldsRunsOfPixelsThatAreCoveredAlike)
{
    const ShapeMask mask(rectangle({2, 1, 5, 2}), {9, 4});

    EXPECT_THAT(row(mask, 0), ElementsAre());
    EXPECT_THAT(row(mask, 1), ElementsAre(Covered{2, 7, 255}));
    EXPECT_THAT(row(mask, 2), ElementsAre(Covered{2, 7, 255}));
    EXPECT_THAT(row(mask, 3), ElementsAre());
}

TEST(ShapeMask, CoversAPixelAsFarAsTheShapeDoes)
{
    const ShapeMask mask(rectangle({1.5, 0, 2, 1}), {6, 1});
    const auto runs = row(mask, 0);
    ASSERT_EQ(runs.size(), 3U);
    EXPECT_EQ(runs[1], (Covered{2, 3, 255}));
    EXPECT_NEAR(runs[0].coverage, 128, 1);
    EXPECT_NEAR(runs[2].coverage, 128, 1);
}

TEST(ShapeMask, CutsOffWhatLiesOutside)
{
    const ShapeMask mask(rectangle({-5, -5, 100, 7}), {9, 4});
    EXPECT_THAT(row(mask, 1), ElementsAre(Covered{0, 9, 255}));
    EXPECT_THAT(row(mask, 2), ElementsAre());
}

TEST(ShapeMask, HoldsCanvasesLargerThanThePainterTakes)
{
    const ShapeMask mask(rectangle({10, 60, 49000, 200}), {50000, 300});
    EXPECT_THAT(row(mask, 59), ElementsAre());
    EXPECT_THAT(row(mask, 60), ElementsAre(Covered{10, 49010, 255}));
    EXPECT_THAT(row(mask, 259), ElementsAre(Covered{10, 49010, 255}));
    EXPECT_THAT(row(mask, 260), ElementsAre());
}

TEST(Stroke, RunsAlongTheMiddleOfItsWidth)
{
    EXPECT_THAT(strokedRow({.width = 4}, 7), ElementsAre());
    EXPECT_THAT(strokedRow({.width = 4}, 8), ElementsAre(Covered{10, 32, 255}));
    EXPECT_THAT(strokedRow({.width = 4}, 20), ElementsAre(Covered{28, 32, 255}));
}

TEST(Stroke, WithoutWidthDrawsNothing)
{
    EXPECT_THAT(strokedRow({.width = 0}, 10), ElementsAre());
    EXPECT_THAT(strokedRow({.width = -4}, 10), ElementsAre());
}

TEST(Stroke, EndsAndTurnsAsItsCapAndJoinTell)
{
    EXPECT_THAT(
        strokedRow({.width = 4, .cap = Qt::SquareCap}, 11), ElementsAre(Covered{8, 32, 255})
    );
    const auto bevelled = strokedRow({.width = 4, .join = Qt::BevelJoin}, 8);
    ASSERT_FALSE(bevelled.empty());
    EXPECT_LT(bevelled.back().end, 32);
}

TEST(Stroke, IsDashedInPixels)
{
    EXPECT_THAT(
        strokedRow({.width = 4, .dash = {6, 4}}, 9),
        ElementsAre(Covered{10, 16, 255}, Covered{20, 26, 255})
    );
}
