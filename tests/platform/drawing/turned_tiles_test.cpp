// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/drawing/turned_tiles.h>

#include <gtest/gtest.h>

#include <cmath>

namespace brenvaldo {
namespace {

using platform::drawing::TileTurn;
using platform::drawing::turnedTiles;
using platform::graphics::Image;

/// A cell whose pixels tell their place: red is x, green is y.
Image places(const QSize& size)
{
    QImage image(size, QImage::Format_RGBA8888);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            image.setPixelColor(x, y, QColor(x, y, 0));
    }
    return Image::fromQImage(image);
}

QPoint placeAt(const QImage& image, int x, int y)
{
    return {qRed(image.pixel(x, y)), qGreen(image.pixel(x, y))};
}

} // namespace

TEST(TurnedTiles, MoveTheirPixelsInAQuarterTurn)
{
    const QImage turned = turnedTiles(
                              places({7, 5}), {.degrees = 90, .canvas = {20, 16}, .centre = {10, 8}}
    ).toQImage();

    // What stood to the right of the middle stands above it.
    EXPECT_EQ(placeAt(turned, 10, 7), QPoint(0, 0));
    EXPECT_EQ(placeAt(turned, 10, 6), QPoint(1, 0));
    EXPECT_EQ(placeAt(turned, 11, 7), QPoint(0, 1));
    EXPECT_EQ(placeAt(turned, 9, 7), QPoint(0, 4));
    EXPECT_EQ(placeAt(turned, 10, 0), QPoint(0, 0));
    EXPECT_EQ(placeAt(turned, 19, 15), QPoint(6, 4));
}

TEST(TurnedTiles, StandWithTheirPlaceInTheCellAtTheCentre)
{
    const TileTurn turn{.degrees = 180, .canvas = {20, 16}, .centre = {10, 8}, .inCell = {3, -4}};

    const QImage turned = turnedTiles(places({7, 5}), turn).toQImage();

    EXPECT_EQ(placeAt(turned, 9, 7), QPoint(3, 1));
    EXPECT_EQ(placeAt(turned, 10, 8), QPoint(2, 0));
    EXPECT_EQ(placeAt(turned, 12, 9), QPoint(0, 4));
}

TEST(TurnedTiles, MixTheirPixelsBetweenThem)
{
    const double radians = 30 * 3.141592653589793 / 180;

    const QImage turned
        = turnedTiles(
              places({200, 100}), {.degrees = 30, .canvas = {60, 50}, .centre = {0, 0}}
        ).toQImage();

    for (const QPoint point : {QPoint(40, 5), QPoint(59, 20), QPoint(50, 0)}) {
        const double x
            = (point.x() + 0.5) * std::cos(radians) - (point.y() + 0.5) * std::sin(radians) - 0.5;
        const double y
            = (point.x() + 0.5) * std::sin(radians) + (point.y() + 0.5) * std::cos(radians) - 0.5;
        EXPECT_NEAR(placeAt(turned, point.x(), point.y()).x(), x, 1.01);
        EXPECT_NEAR(placeAt(turned, point.x(), point.y()).y(), y, 1.01);
    }
}

TEST(TurnedTiles, LendNoColorFromTransparentPixels)
{
    QImage image(2, 2, QImage::Format_RGBA8888);
    image.setPixelColor(0, 0, QColor(200, 100, 50, 255));
    image.setPixelColor(1, 0, QColor(0, 0, 0, 0));
    image.setPixelColor(0, 1, QColor(200, 100, 50, 255));
    image.setPixelColor(1, 1, QColor(0, 0, 0, 0));

    const QImage turned
        = turnedTiles(
              Image::fromQImage(image), {.degrees = 0, .canvas = {4, 4}, .inCell = {0.5, 0}}
        )
              .toQImage()
              .convertToFormat(QImage::Format_RGBA8888);

    EXPECT_NEAR(qAlpha(turned.pixel(0, 0)), 128, 1);
    EXPECT_NEAR(qRed(turned.pixel(0, 0)), 200, 1);
    EXPECT_NEAR(qGreen(turned.pixel(0, 0)), 100, 1);
    EXPECT_NEAR(qBlue(turned.pixel(0, 0)), 50, 1);
}

TEST(TurnedTiles, MayBeOfOnePixel)
{
    const QImage turned = turnedTiles(
                              places({1, 1}), {.degrees = 33, .canvas = {9, 9}, .centre = {4, 4}}
    ).toQImage();

    EXPECT_EQ(turned.pixel(0, 0), qRgba(0, 0, 0, 255));
    EXPECT_EQ(turned.pixel(8, 8), qRgba(0, 0, 0, 255));
}

} // namespace brenvaldo
