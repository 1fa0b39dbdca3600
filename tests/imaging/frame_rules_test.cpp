// SPDX-License-Identifier: GPL-3.0-or-later
#include <imaging/frame_rules.h>

#include <support/geometry_printing.h>

#include <gtest/gtest.h>

using namespace brenvaldo::imaging;
using brenvaldo::platform::drawing::BlendMode;
using brenvaldo::platform::graphics::PixelSize;

TEST(FrameRules, KnowTwoTypes)
{
    EXPECT_EQ(frameTypeAt(0), FrameType::Inside);
    EXPECT_EQ(frameTypeAt(1), FrameType::Outside);
    EXPECT_EQ(frameTypeAt(2), std::nullopt);
    EXPECT_EQ(frameTypeAt(-1), std::nullopt);
}

TEST(FrameRules, HaveABlendTableOfTheirOwn)
{
    EXPECT_EQ(frameBlendAt(0), BlendMode::Normal);
    EXPECT_EQ(frameBlendAt(1), BlendMode::Darken);
    EXPECT_EQ(frameBlendAt(2), BlendMode::Lighten);
    EXPECT_EQ(frameBlendAt(3), BlendMode::Multiply);
    EXPECT_EQ(frameBlendAt(4), BlendMode::Overlay);
    EXPECT_EQ(frameBlendAt(5), BlendMode::Color);
    EXPECT_EQ(frameBlendAt(6), BlendMode::Normal);
    EXPECT_EQ(frameBlendAt(-1), BlendMode::Normal);
}

TEST(FrameRules, ReadOpacitiesInThreeWays)
{
    struct Row
    {
        int percent;
        double inside;
        double outside;
        double shown;
    };
    constexpr double before = 0.7;
    const Row rows[] = {
        {1, 0.01, 0.01, 0.01},
        {35, 0.35, 0.35, 0.35},
        {100, 1, 1, 1},
        {0, 0.01, before, 1},
        {101, 0.01, before, 1},
        {-1, 1, before, 0.1},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(frameOpacity({.frameType = 0, .opacity = row.percent}, before), row.inside);
        EXPECT_EQ(frameOpacity({.frameType = 1, .opacity = row.percent}, before), row.outside);
        EXPECT_EQ(shownOpacity(row.percent), row.shown);
    }
}

TEST(FrameRules, GrowACanvasByTheThicknessOnEverySide)
{
    EXPECT_EQ(grownBy({100, 80}, 10), (PixelSize{120, 100}));
    EXPECT_EQ(grownBy({100, 80}, 0), (PixelSize{100, 80}));
    EXPECT_EQ(grownBy({100, 80}, -30), (PixelSize{40, 20}));
    EXPECT_EQ(grownBy({100, 80}, -40), (PixelSize{}));
    EXPECT_EQ(grownBy({100, 80}, 100'000'000), (PixelSize{}));
    EXPECT_EQ(grownBy({100, 80}, INT64_MAX), (PixelSize{}));
    EXPECT_EQ(grownBy({100, 80}, INT64_MIN), (PixelSize{}));
}

TEST(FrameRules, LeadTheLineAroundFromTheLowerLeft)
{
    const QPainterPath line = frameLine({100, 80}, 7, 2);
    ASSERT_EQ(line.elementCount(), 5);
    EXPECT_EQ(QPointF(line.elementAt(0)), QPointF(7, 2));
    EXPECT_EQ(QPointF(line.elementAt(1)), QPointF(7, 73));
    EXPECT_EQ(QPointF(line.elementAt(2)), QPointF(93, 73));
    EXPECT_EQ(QPointF(line.elementAt(3)), QPointF(93, 7));
    EXPECT_EQ(QPointF(line.elementAt(4)), QPointF(7, 7));
}

TEST(FrameRules, CountPixelsFromTheTop)
{
    EXPECT_EQ(toPixels({100, 80}).map(QPointF(3, 10)), QPointF(3, 70));
}
