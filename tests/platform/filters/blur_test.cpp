// SPDX-License-Identifier: GPL-3.0-or-later
#include "filtering.h"

#include <cmath>
#include <numbers>
#include <vector>

using namespace brenvaldo;
using namespace brenvaldo::test;

namespace {

/// Two greys side by side; the right one begins at `edge`.
QImage step(int left, int right, int edge, QSize size = {60, 20})
{
    QImage picture(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            const int level = x < edge ? left : right;
            picture.setPixel(x, y, qRgb(level, level, level));
        }
    }
    return picture;
}

std::vector<int> levels(const QImage& picture, int first, int count)
{
    std::vector<int> found;
    for (int x = first; x < first + count; ++x)
        found.push_back(qRed(picture.pixel(x, picture.height() / 2)));
    return found;
}

void expectLevels(const std::vector<int>& actual, const std::vector<int>& expected)
{
    ASSERT_EQ(actual.size(), expected.size());
    for (std::size_t i = 0; i < actual.size(); ++i)
        EXPECT_NEAR(actual[i], expected[i], 1) << i;
}

QImage blurred(const QImage& picture, double radius)
{
    return filtered(u"CIGaussianBlur"_s, {{u"inputRadius"_s, radius}}, picture);
}

} // namespace

TEST(GaussianBlur, SpreadsLinearLight)
{
    expectLevels(levels(blurred(step(0, 255, 20), 2), 17, 6), {90, 130, 170, 203, 228, 243});
}

TEST(GaussianBlur, BlursUpAndDown)
{
    const QImage upright = step(0, 255, 20).transformed(QTransform().rotate(90));
    const QImage result = blurred(upright, 2).transformed(QTransform().rotate(-90));
    expectLevels(levels(result, 17, 6), {90, 130, 170, 203, 228, 243});
}

TEST(GaussianBlur, HasARadiusOfTenByDefault)
{
    const QImage picture = step(0, 255, 100, {200, 40});
    EXPECT_EQ(filtered(u"CIGaussianBlur"_s, {}, picture), blurred(picture, 10));
    EXPECT_NE(filtered(u"CIGaussianBlur"_s, {}, picture), blurred(picture, 9));
}

TEST(GaussianBlur, ContinuesTheEdges)
{
    const QImage solid = solidPicture(qRgb(200, 100, 50), 50, 30);
    for (const double radius : {1.0, 5.0, 40.0, 300.0}) {
        const QImage result = blurred(solid, radius);
        ASSERT_EQ(result.size(), solid.size());
        EXPECT_FALSE(result.hasAlphaChannel());
        for (const QPoint& place : {QPoint(0, 0), QPoint(49, 29), QPoint(25, 15)})
            EXPECT_TRUE(isNear(result.pixel(place), qRgb(200, 100, 50))) << radius;
    }
}

TEST(GaussianBlur, IsAGaussianAtEveryWidth)
{
    constexpr int edge = 300;
    for (const int sigma : {5, 12, 17, 25, 40, 90}) {
        const QImage result = blurred(step(0, 255, edge, {600, 40}), sigma);
        for (const int x : {edge - sigma, edge, edge + sigma}) {
            const double distance = (x + 0.5 - edge) / sigma;
            const double light = 0.5 * (1 + std::erf(distance / std::numbers::sqrt2));
            const double level = 255 * (1.055 * std::pow(light, 1 / 2.4) - 0.055);
            EXPECT_NEAR(qRed(result.pixel(x, 20)), level, 3) << sigma << " at " << x;
        }
    }
}

TEST(GaussianBlur, LeavesThePictureAtARadiusThatCannotBeSeen)
{
    const QImage picture = step(0, 255, 20);
    EXPECT_EQ(blurred(picture, 0.15), picture);
    EXPECT_EQ(blurred(picture, 0), picture);
    EXPECT_EQ(blurred(picture, -3), picture);
}

TEST(GaussianBlur, WeighsColoursWithTheirAlpha)
{
    QImage picture(40, 1, QImage::Format_ARGB32);
    for (int x = 0; x < 40; ++x)
        picture.setPixel(x, 0, x < 20 ? qRgba(255, 0, 0, 255) : qRgba(0, 0, 255, 0));

    const QImage result = blurred(picture, 2).convertToFormat(QImage::Format_ARGB32);

    EXPECT_NEAR(qAlpha(result.pixel(19, 0)), 0.5998 * 255, 1);
    EXPECT_NEAR(qAlpha(result.pixel(18, 0)), 0.7761 * 255, 1);
    EXPECT_NEAR(qAlpha(result.pixel(17, 0)), 0.8972 * 255, 1);
    EXPECT_NEAR(qRed(result.pixel(21, 0)), 255, 4);
    EXPECT_EQ(qBlue(result.pixel(21, 0)), 0);
}

TEST(UnsharpMask, AddsTheDifferenceFromTheBlur)
{
    const QImage picture = step(100, 160, 30);
    expectLevels(
        levels(filtered(u"CIUnsharpMask"_s, {}, picture), 26, 8),
        {97, 93, 88, 80, 169, 166, 164, 162}
    );
    expectLevels(
        levels(filtered(u"CIUnsharpMask"_s, {{u"inputIntensity"_s, 1.0}}, picture), 26, 8),
        {93, 86, 73, 51, 178, 172, 167, 164}
    );
}

TEST(UnsharpMask, FollowsItsRadius)
{
    const QImage picture = step(100, 160, 30);
    const QImage wide = filtered(u"CIUnsharpMask"_s, {{u"inputRadius"_s, 8.0}}, picture);
    EXPECT_LT(qRed(wide.pixel(22, 10)), 98);
    EXPECT_EQ(qRed(filtered(u"CIUnsharpMask"_s, {}, picture).pixel(20, 10)), 100);
    EXPECT_EQ(filtered(u"CIUnsharpMask"_s, {{u"inputRadius"_s, 0.0}}, picture), picture);
}

TEST(UnsharpMask, KeepsTheAlpha)
{
    const QImage result
        = filtered(u"CIUnsharpMask"_s, {}, solidPicture(qRgba(200, 100, 50, 77), 20, 20));
    EXPECT_EQ(qAlpha(result.pixel(0, 0)), 77);
}
