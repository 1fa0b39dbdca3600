// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/drawing/layer_shadow.h>

#include <gtest/gtest.h>

#include <QPainter>

using namespace brenvaldo::platform::graphics;
using namespace brenvaldo::platform::drawing;

namespace {

QImage filled(QSize size, const QRect& part)
{
    QImage layer(size, QImage::Format_ARGB32_Premultiplied);
    layer.fill(Qt::transparent);
    QPainter(&layer).fillRect(part, Qt::white);
    return layer;
}

constexpr Color black{.red = 0, .green = 0, .blue = 0, .alpha = 1};

} // namespace

TEST(LayerShadow, IsMovedToTheRightAndUp)
{
    const QImage object = filled({20, 20}, {8, 8, 2, 2});

    const QImage shadow
        = shadowLayer(object, {.color = black, .xOffset = 3, .yOffset = 4, .blurRadius = 0}, 0);

    EXPECT_EQ(qAlpha(shadow.pixel(11, 4)), 255);
    EXPECT_EQ(qAlpha(shadow.pixel(12, 5)), 255);
    EXPECT_EQ(qAlpha(shadow.pixel(8, 8)), 0);
}

TEST(LayerShadow, FallsOffAcrossAStraightEdgeLikeAGaussianOfHalfTheRadius)
{
    const QImage object = filled({200, 100}, {0, 0, 100, 100});

    const QImage shadow = shadowLayer(object, {.color = black, .blurRadius = 10}, 0);

    // Between the pixel centres at either side of the edge lies one half.
    EXPECT_NEAR((qAlpha(shadow.pixel(99, 50)) + qAlpha(shadow.pixel(100, 50))) / 2.0, 127.5, 2);
    EXPECT_NEAR(
        (qAlpha(shadow.pixel(104, 50)) + qAlpha(shadow.pixel(105, 50))) / 2.0, 0.1587 * 255, 2
    );
    EXPECT_NEAR(
        (qAlpha(shadow.pixel(109, 50)) + qAlpha(shadow.pixel(110, 50))) / 2.0, 0.0228 * 255, 2
    );
}

TEST(LayerShadow, HasTheColorsStrength)
{
    const QImage object = filled({20, 20}, {0, 0, 20, 20});

    const QImage shadow = shadowLayer(object, {.color = {.red = 1, .alpha = 0.5}}, 0);

    EXPECT_EQ(shadow.pixel(10, 10), qRgba(128, 0, 0, 128));
}

TEST(LayerShadow, GrowsByItsMargin)
{
    const QImage object = filled({20, 10}, {0, 0, 20, 10});

    const QImage shadow = shadowLayer(object, {.color = black, .blurRadius = 4}, shadowReach(4));

    EXPECT_EQ(shadow.size(), QSize(32, 22));
    EXPECT_GT(qAlpha(shadow.pixel(5, 11)), 60);
}

TEST(TiledShadow, EntersAtTheOtherSide)
{
    const QImage cell = filled({10, 10}, {9, 0, 1, 1});

    const QImage shadow
        = tiledShadowLayer(cell, {.color = black, .xOffset = 2, .yOffset = 1, .blurRadius = 0});

    EXPECT_EQ(qAlpha(shadow.pixel(1, 9)), 255);
}

TEST(TiledShadow, IsThatOfManyCellsSideBySide)
{
    const QSize size(23, 17); // smaller than the blur reaches
    const QImage cell = filled(size, {18, 3, 5, 9});
    const Shadow shadow{.color = black, .xOffset = 4, .yOffset = -6, .blurRadius = 12};
    constexpr int cells = 5;
    QImage field(size * cells, QImage::Format_ARGB32_Premultiplied);
    QPainter painter(&field);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    for (int index = 0; index < cells * cells; ++index)
        painter.drawImage(
            QPoint(index % cells * size.width(), index / cells * size.height()), cell
        );
    painter.end();

    const QImage middle = shadowLayer(field, shadow, 0)
                              .copy(QRect(QPoint(2 * size.width(), 2 * size.height()), size));

    EXPECT_EQ(tiledShadowLayer(cell, shadow), middle);
}

TEST(ObjectWithShadow, ShowsTheShadowOfWhatStandsOutsideOfTheArea)
{
    // A square far to the left of what is shown.
    const PlacedLayer square{.image = filled({10, 10}, {0, 0, 10, 10}), .topLeft = {-100, 5}};
    const auto render = [&square](const QRect& area) -> PlacedLayer {
        return area.intersects(square.area()) ? square : PlacedLayer{};
    };
    const Shadow shadow{.color = {.red = 1}, .xOffset = 103, .yOffset = -2, .blurRadius = 0};

    const PlacedLayer shown = withShadow(render, shadow, {0, 0, 40, 30});

    const QPoint corner = QPoint(3, 7) - shown.topLeft;
    EXPECT_EQ(shown.image.pixel(corner), qRgb(255, 0, 0));
    EXPECT_EQ(shown.image.pixel(corner + QPoint(9, 9)), qRgb(255, 0, 0));
    EXPECT_TRUE(QRect(0, 0, 40, 30).contains(shown.area()));
}

TEST(ObjectWithShadow, StandsAboveItsShadow)
{
    const PlacedLayer square{.image = filled({10, 10}, {0, 0, 10, 10}), .topLeft = {5, 5}};
    const Shadow shadow{.color = {.red = 1}, .xOffset = 4, .yOffset = -4, .blurRadius = 0};

    const PlacedLayer shown
        = withShadow([&square](const QRect&) { return square; }, shadow, {0, 0, 40, 30});

    EXPECT_EQ(shown.area(), QRect(5, 5, 14, 14));
    EXPECT_EQ(shown.image.pixel(9, 9), qRgb(255, 255, 255));
    EXPECT_EQ(shown.image.pixel(10, 10), qRgb(255, 0, 0));
    EXPECT_EQ(qAlpha(shown.image.pixel(13, 3)), 0);
}

TEST(ObjectWithShadow, IsEvenlyShadedAwayFromTheEdgesOfWhatCastsIt)
{
    const QRect area(0, 0, 100, 80);

    EXPECT_EQ(
        inEvenShadowOf(area, {.xOffset = 10, .yOffset = 5, .blurRadius = 4}),
        QRect(QPoint(16, 1), QPoint(103, 68))
    );
    EXPECT_EQ(inEvenShadowOf(area, {.blurRadius = 60}), QRect());
}
