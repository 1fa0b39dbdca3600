// SPDX-License-Identifier: GPL-3.0-or-later
#include "rounding_words.h"

#include <imaging/rounding_rules.h>

#include <support/geometry_printing.h>

#include <gtest/gtest.h>

#include <array>

using namespace brenvaldo::imaging;
using namespace brenvaldo::test;
using brenvaldo::platform::graphics::PixelSize;

namespace {

constexpr PixelSize originalSize{400, 300};

RoundingPlan planOf(const RoundingSettings& settings, PixelSize size = originalSize)
{
    return roundingPlan(size, settings).value_or(RoundingPlan());
}

} // namespace

TEST(RoundingPlan, OfARectangleOrAnEllipseHasThePhotosSize)
{
    for (const int type : {rectangle, ellipse, 3, -1}) {
        const RoundingPlan plan = planOf({.radius = 20, .type = type});
        EXPECT_EQ(plan.canvas, originalSize);
        EXPECT_EQ(plan.photo, QPoint(0, 0));
        EXPECT_EQ(plan.clip.boundingRect(), QRectF(0, 0, 400, 300));
        EXPECT_EQ(plan.borderWidth, 0);
    }
}

TEST(RoundingPlan, OfACircleShowsTheMiddleOfThePhoto)
{
    EXPECT_EQ(planOf({.type = circle}).canvas, (PixelSize{300, 300}));
    EXPECT_EQ(planOf({.type = circle}).photo, QPoint(-50, 0));
    EXPECT_EQ(planOf({.type = circle}).clip.boundingRect(), QRectF(0, 0, 300, 300));
    EXPECT_EQ(planOf({.type = circle}, {300, 401}).photo, QPoint(0, -50));
}

TEST(RoundingPlan, GrowsByABorderAroundThePhoto)
{
    RoundingSettings settings{
        .radius = 20, .borderState = 1, .borderWidth = 10, .borderPosition = around};
    RoundingPlan plan = planOf(settings);
    EXPECT_EQ(plan.canvas, (PixelSize{420, 320}));
    EXPECT_EQ(plan.photo, QPoint(10, 10));
    EXPECT_EQ(plan.clip.boundingRect(), QRectF(10, 10, 400, 300));
    EXPECT_EQ(plan.border.boundingRect(), QRectF(5, 5, 410, 310));

    settings.type = circle;
    plan = planOf(settings);
    EXPECT_EQ(plan.canvas, (PixelSize{320, 320}));
    EXPECT_EQ(plan.photo, QPoint(-40, 10));
    EXPECT_EQ(plan.clip.boundingRect(), QRectF(10, 10, 300, 300));
    EXPECT_EQ(plan.border.boundingRect(), QRectF(5, 5, 310, 310));

    settings.type = ellipse;
    EXPECT_EQ(planOf(settings).clip.boundingRect(), QRectF(10, 10, 400, 300));
}

TEST(RoundingPlan, LaysOtherBordersOnThePhoto)
{
    for (const int position : {0, 2, -1}) {
        RoundingSettings settings{
            .radius = 20, .borderState = 1, .borderWidth = 10, .borderPosition = position};
        RoundingPlan plan = planOf(settings);
        EXPECT_EQ(plan.canvas, originalSize);
        EXPECT_EQ(plan.clip.boundingRect(), QRectF(10, 10, 380, 280));
        EXPECT_EQ(plan.border.boundingRect(), QRectF(5, 5, 390, 290));

        settings.type = ellipse;
        plan = planOf(settings);
        EXPECT_EQ(plan.clip.boundingRect(), QRectF(0, 0, 400, 300));
        EXPECT_EQ(plan.border.boundingRect(), QRectF(5, 5, 390, 290));
    }
}

TEST(RoundingPlan, HasABorderOfAnyStateButZero)
{
    EXPECT_EQ(planOf({.borderState = 1, .borderWidth = 10}).borderWidth, 10);
    EXPECT_EQ(planOf({.borderState = -1, .borderWidth = 10}).borderWidth, 10);
    EXPECT_EQ(planOf({.borderState = 0, .borderWidth = 10}).borderWidth, 0);
    EXPECT_EQ(
        planOf({.borderState = 0, .borderWidth = 10, .borderPosition = around}).canvas, originalSize
    );
}

TEST(RoundingPlan, RoundsTheClipByLessThanTheBorder)
{
    const RoundingPlan plan = planOf({.radius = 20, .borderState = 1, .borderWidth = 10});
    EXPECT_EQ(QPointF(plan.clip.elementAt(0)), QPointF(10, 25));
    EXPECT_EQ(QPointF(plan.clip.elementAt(1)), QPointF(10, 275));
    EXPECT_EQ(QPointF(plan.border.elementAt(0)), QPointF(5, 25));
    EXPECT_EQ(QPointF(plan.border.elementAt(1)), QPointF(5, 275));
}

TEST(RoundingPlan, HasASquareClipBelowARoundBorderWithASmallRadius)
{
    const RoundingPlan plan = planOf({.radius = 4, .borderState = 1, .borderWidth = 10});
    EXPECT_TRUE(plan.clip.contains(QRectF(10, 10, 380, 280)));
    EXPECT_EQ(QPointF(plan.border.elementAt(0)), QPointF(5, 9));
    EXPECT_FALSE(plan.border.contains(QPointF(5.5, 5.5)));
}

TEST(RoundingPlan, KeepsTheCornersSquareWithoutARadius)
{
    for (const int radius : {0, -5})
        EXPECT_TRUE(planOf({.radius = radius}).clip.contains(QRectF(0, 0, 400, 300)));
}

TEST(RoundingPlan, CutsQuartersOfACircleOffTheCorners)
{
    const QPainterPath clip = planOf({.radius = 50}).clip;
    const double inside = 50 - 50 * 0.70;
    const double outside = 50 - 50 * 0.715;
    for (const auto& [x, y] :
         {std::pair(0, 0), std::pair(400, 0), std::pair(0, 300), std::pair(400, 300)}) {
        const auto from = [x = x, y = y](double distance) {
            return QPointF(std::abs(x - distance), std::abs(y - distance));
        };
        EXPECT_TRUE(clip.contains(from(inside))) << x << ' ' << y;
        EXPECT_FALSE(clip.contains(from(outside))) << x << ' ' << y;
    }
    EXPECT_TRUE(clip.contains(QPointF(1, 150)));
    EXPECT_TRUE(clip.contains(QPointF(200, 299)));
}

TEST(RoundingPlan, LetsLargeCornersCrossEachOther)
{
    const QPainterPath clip = planOf({.radius = 250}).clip;
    EXPECT_EQ(QPointF(clip.elementAt(0)), QPointF(0, 250));
    EXPECT_EQ(QPointF(clip.elementAt(1)), QPointF(0, 50));
}

TEST(RoundingPlan, NeedsACanvas)
{
    RoundingSettings settings{.borderState = 1, .borderWidth = -150, .borderPosition = around};
    EXPECT_FALSE(roundingPlan(originalSize, settings));
    settings.borderWidth = INT64_MAX;
    EXPECT_FALSE(roundingPlan(originalSize, settings));
}
