// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/drawing/clear_layer.h>
#include <platform/drawing/layer_fade.h>

#include <gtest/gtest.h>

#include <cmath>

namespace brenvaldo {
namespace {

using platform::drawing::FadeAlong;
using platform::drawing::FadeInward;
using platform::drawing::FadeMask;
using platform::drawing::FadeOutward;
using platform::graphics::Image;

Image layerOf(const QSize& size, const QColor& color = Qt::white)
{
    QImage painted(size, QImage::Format_RGBA8888);
    painted.fill(color);
    return Image::fromQImage(painted);
}

/// The opacity that is left at a pixel of a white layer.
int alphaAt(const QSize& size, const FadeMask& mask, int x, int y)
{
    return qAlpha(platform::drawing::faded(layerOf(size), mask).toQImage().pixel(x, y));
}

} // namespace

TEST(LayerFade, FallsInAStraightLineFromWholeToGone)
{
    const FadeMask mask{.size = {300, 100}, .shape = FadeAlong{{0, 50}, {150, 50}}};

    for (const int x : {0, 1, 40, 75, 149, 150, 257, 299})
        EXPECT_NEAR(
            alphaAt({300, 100}, mask, x, 30), 255 * std::max(0.0, 1 - (x + 0.5) / 150), 0.51
        ) << x;
}

TEST(LayerFade, CountsRowsFromTheBottom)
{
    const FadeMask mask{.size = {10, 100}, .shape = FadeAlong{{5, 0}, {5, 100}}};

    EXPECT_EQ(alphaAt({10, 100}, mask, 4, 99), 254);
    EXPECT_EQ(alphaAt({10, 100}, mask, 4, 0), 1);
}

TEST(LayerFade, IsWholeBeforeItsStart)
{
    const FadeMask mask{.size = {100, 10}, .shape = FadeAlong{{50, 5}, {100, 5}}};

    EXPECT_EQ(alphaAt({100, 10}, mask, 20, 5), 255);
}

TEST(LayerFade, StretchesTheMaskOverTheLayer)
{
    const FadeMask mask{.size = {50, 25}, .shape = FadeAlong{{0, 0}, {50, 0}}};

    EXPECT_NEAR(alphaAt({200, 100}, mask, 99, 50), 255 * (1 - 99.5 / 200), 0.51);
}

TEST(LayerFade, FallsOutwardFromTheMiddle)
{
    const FadeMask mask{.size = {81, 61}, .shape = FadeOutward{{40.5, 30.5}, 20}};

    EXPECT_EQ(alphaAt({81, 61}, mask, 40, 30), 255);
    EXPECT_NEAR(alphaAt({81, 61}, mask, 50, 30), 127.5, 0.51);
    EXPECT_NEAR(alphaAt({81, 61}, mask, 40, 15), 255 * 0.25, 0.51);
    EXPECT_NEAR(alphaAt({81, 61}, mask, 46, 38), 127.5, 0.51);
    EXPECT_EQ(alphaAt({81, 61}, mask, 61, 30), 0);
    EXPECT_EQ(alphaAt({81, 61}, mask, 0, 0), 0);
}

TEST(LayerFade, WithoutARadiusLeavesNothing)
{
    const FadeMask mask{.size = {3, 3}, .shape = FadeOutward{{1.5, 1.5}, -0.5}};

    EXPECT_EQ(alphaAt({3, 3}, mask, 1, 1), 0);
    EXPECT_EQ(alphaAt({3, 3}, mask, 0, 0), 0);
}

TEST(LayerFade, FallsInwardFromTheRim)
{
    const FadeMask mask{.size = {81, 61}, .shape = FadeInward{{40.5, 30.5}, 30, 10}};

    EXPECT_EQ(alphaAt({81, 61}, mask, 0, 0), 255);
    EXPECT_EQ(alphaAt({81, 61}, mask, 71, 30), 255);
    EXPECT_NEAR(alphaAt({81, 61}, mask, 60, 30), 127.5, 0.51);
    EXPECT_EQ(alphaAt({81, 61}, mask, 50, 30), 0);
    EXPECT_EQ(alphaAt({81, 61}, mask, 40, 30), 0);
}

TEST(LayerFade, HasAHardRimWhereBothRadiiAreTheSame)
{
    const FadeMask mask{.size = {81, 61}, .shape = FadeInward{{40.5, 30.5}, 20, 20}};

    EXPECT_EQ(alphaAt({81, 61}, mask, 61, 30), 255);
    EXPECT_EQ(alphaAt({81, 61}, mask, 59, 30), 0);
}

TEST(LayerFade, WeakensWhatIsTranslucentAlready)
{
    const FadeMask mask{.size = {100, 10}, .shape = FadeAlong{{0, 5}, {100, 5}}};
    const Image layer = layerOf({100, 10}, QColor(10, 200, 30, 128));

    const QImage left
        = platform::drawing::faded(layer, mask).toQImage().convertToFormat(QImage::Format_RGBA8888);

    EXPECT_NEAR(qAlpha(left.pixel(49, 5)), 128 * 0.505, 0.8);
    EXPECT_NEAR(qGreen(left.pixel(49, 5)), 200, 2);
}

} // namespace brenvaldo
