// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/drawing/relief.h>

#include <gtest/gtest.h>

#include <QPainter>

#include <algorithm>
#include <cmath>

using namespace brenvaldo::platform::drawing;

namespace {

/// White in the right half, nothing in the left.
QImage rightHalf(int width, int height)
{
    QImage layer(width, height, QImage::Format_ARGB32_Premultiplied);
    layer.fill(Qt::transparent);
    QPainter(&layer).fillRect(width / 2, 0, width / 2, height, Qt::white);
    return layer;
}

/// The colour of each texel tells its place: red is u, green is v, both in texels from the bottom
/// left.
QImage coordinates()
{
    QImage shading(256, 256, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < 256; ++y) {
        for (int x = 0; x < 256; ++x)
            shading.setPixel(x, y, qRgb(x, 255 - y, 0));
    }
    return shading;
}

/// The right half raised without the softening of its ridge.
HeightField plainSlope(int width, int height)
{
    HeightField field{.width = width, .height = height, .heights = {}};
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const double t = std::min(1.0, std::max(0.0, (x - width / 2 + 0.5) / 10));
            field.heights.push_back(static_cast<float>(std::sqrt(1 - (1 - t) * (1 - t))));
        }
    }
    return field;
}

struct SlopeCase
{
    int pixel;
    double u;
};

} // namespace

TEST(HeightField, RisesInAQuarterCircleInsideTheEdge)
{
    const HeightField field = heightFieldFromMask(rightHalf(200, 101), 4);

    // A radius of 4 is too small to be softened.
    EXPECT_NEAR(field.at(99, 50), 0, 1e-6);
    EXPECT_NEAR(field.at(100, 50), std::sqrt(1 - std::pow(1 - 0.125, 2)), 1e-5);
    EXPECT_NEAR(field.at(102, 50), std::sqrt(1 - std::pow(1 - 0.625, 2)), 1e-5);
    EXPECT_NEAR(field.at(150, 50), 1, 1e-6);
}

TEST(HeightField, TakesTheLayersBorderAsOutside)
{
    const HeightField field = heightFieldFromMask(rightHalf(200, 101), 4);

    EXPECT_NEAR(field.at(199, 50), field.at(100, 50), 1e-5);
    EXPECT_NEAR(field.at(150, 0), field.at(100, 50), 1e-5);
}

TEST(HeightField, RisesByTheDistanceToTheNearestPixelOutside)
{
    constexpr int width = 37;
    constexpr int height = 29;
    constexpr double radius = 4;
    QImage layer(width, height, QImage::Format_ARGB32_Premultiplied);
    layer.fill(Qt::white);
    const QList<QPoint> holes{{3, 4}, {20, 7}, {21, 22}, {33, 27}};
    for (const QPoint& hole : holes)
        layer.setPixel(hole, 0);

    const HeightField field = heightFieldFromMask(layer, radius);

    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            double distance = std::min({x + 1, y + 1, width - x, height - y});
            for (const QPoint& hole : holes)
                distance = std::min(distance, std::hypot(x - hole.x(), y - hole.y()));
            const double t = std::clamp((distance - 0.5) / radius, 0.0, 1.0);
            ASSERT_NEAR(field.at(x, y), std::sqrt(1 - (1 - t) * (1 - t)), 1e-5) << x << ", " << y;
        }
    }
}

TEST(HeightField, HasTheSameSlopeForATranslucentPart)
{
    const HeightField whole = heightFieldFromMask(rightHalf(200, 101), 4);
    for (const int alpha : {5, 51, 126, 128, 153}) {
        QImage translucent(200, 101, QImage::Format_ARGB32_Premultiplied);
        translucent.fill(Qt::transparent);
        QPainter(&translucent).fillRect(100, 0, 100, 101, QColor(255, 255, 255, alpha));

        const HeightField field = heightFieldFromMask(translucent, 4);

        // Heights are multiplied by the mask.
        for (const int x : {99, 100, 102, 150})
            EXPECT_NEAR(field.at(x, 50), alpha / 255.0 * whole.at(x, 50), 1e-4)
                << alpha << ", " << x;
    }
}

TEST(HeightField, OfATransparentLayerIsFlat)
{
    QImage transparent(40, 40, QImage::Format_ARGB32_Premultiplied);
    transparent.fill(Qt::transparent);

    EXPECT_FLOAT_EQ(heightFieldFromMask(transparent, 4).at(20, 20), 0);
}

TEST(HeightField, OfRadiusZeroIsTheMask)
{
    const HeightField field = heightFieldFromMask(rightHalf(10, 4), 0);

    EXPECT_FLOAT_EQ(field.at(4, 2), 0);
    EXPECT_FLOAT_EQ(field.at(5, 2), 1);
}

TEST(HeightField, OfAnEmptyLayerIsEmpty)
{
    EXPECT_TRUE(heightFieldFromMask({}, 10).heights.empty());
}

TEST(ShadedMaterial, LooksUpTheNormalInTheShadingPicture)
{
    const QImage layer = rightHalf(80, 21);

    const QImage shaded = shadedMaterial(plainSlope(80, 21), layer, coordinates(), 10);

    for (const auto& row :
         {SlopeCase{1, 16.93}, SlopeCase{2, 30.85}, SlopeCase{5, 70.03}, SlopeCase{12, 128}}) {
        const QRgb pixel = shaded.pixel(40 + row.pixel, 10);
        EXPECT_NEAR(qRed(pixel), row.u - 0.5, 1) << row.pixel;
        EXPECT_NEAR(qGreen(pixel), 127.5, 1) << row.pixel;
    }
}

TEST(ShadedMaterial, IsAsOpaqueAsTheLayer)
{
    const QImage layer = rightHalf(80, 21);

    const QImage shaded = shadedMaterial(plainSlope(80, 21), layer, coordinates(), 10);

    EXPECT_EQ(qAlpha(shaded.pixel(10, 10)), 0);
    EXPECT_EQ(qAlpha(shaded.pixel(60, 10)), 255);
}

TEST(ColorBall, IsBlackAtItsRimAndColoredAtItsHighlight)
{
    const QImage ball = colorBall({.red = 1, .green = 0.5, .blue = 0});

    EXPECT_EQ(ball.size(), QSize(134, 134));
    EXPECT_EQ(qAlpha(ball.pixel(0, 0)), 0);
    const QRgb rim = ball.pixel(67, 131);
    EXPECT_LT(qRed(rim), 10);
    EXPECT_EQ(qAlpha(rim), 255);
    const QRgb highlight = ball.pixel(67, 134 - 97);
    EXPECT_GT(qRed(highlight), 245);
    EXPECT_NEAR(qGreen(highlight), qRed(highlight) / 2, 2);
    EXPECT_EQ(qBlue(highlight), 0);
}
