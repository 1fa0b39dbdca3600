// SPDX-License-Identifier: GPL-3.0-or-later
#include "filtering.h"

#include <cmath>
#include <numbers>

using namespace brenvaldo;
using namespace brenvaldo::test;
using platform::filters::Point;

namespace {

constexpr int side = 320;

struct ScreenPixel
{
    QRgb color;
    double x; ///< middle of the pixel, from the left
    double y; ///< from the bottom
};

/// The level of one pixel of a solid picture behind a screen.
int levelBehind(const QString& screen, const NamedInputs& inputs, const ScreenPixel& pixel)
{
    const QImage result = filtered(screen, inputs, solidPicture(pixel.color, side, side));
    const QRgb found = result.pixel(
        static_cast<int>(std::floor(pixel.x)), static_cast<int>(side - 0.5 - pixel.y)
    );
    EXPECT_EQ(qRed(found), qGreen(found));
    EXPECT_EQ(qRed(found), qBlue(found));
    return qRed(found);
}

NamedInputs inputs(double width, double sharpness, double angle = 0)
{
    return {{u"inputWidth"_s, width}, {u"inputSharpness"_s, sharpness}, {u"inputAngle"_s, angle}};
}

QRgb gray(int level) { return qRgb(level, level, level); }

/// Mean linear light of a screened grey.
double lightBehind(const QString& screen, int level)
{
    const QImage result
        = filtered(screen, inputs(21, 0.7, 0.3), solidPicture(gray(level), side, side));
    double sum = 0;
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            const double value = qRed(result.pixel(x, y)) / 255.0;
            sum += value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
        }
    }
    return sum / (side * side);
}

} // namespace

TEST(DotScreen, ComparesTheLightWithItsPattern)
{
    const QString dots = u"CIDotScreen"_s;
    EXPECT_NEAR(levelBehind(dots, {}, {gray(188), 151.5, 151.5}), 189, 1);
    EXPECT_NEAR(levelBehind(dots, {}, {gray(128), 151.5, 150.5}), 188, 1);
    EXPECT_NEAR(
        levelBehind(
            dots, inputs(12, 0.9, std::numbers::pi / 4), {qRgb(200, 100, 50), 161.5, 158.5}
        ),
        191,
        1
    );
    EXPECT_NEAR(levelBehind(dots, inputs(6, 0), {gray(64), 150.5, 150.5}), 143, 1);
}

TEST(LineScreen, ComparesTheLightWithItsPattern)
{
    const QString lines = u"CILineScreen"_s;
    EXPECT_NEAR(levelBehind(lines, {}, {gray(188), 152.5, 151.5}), 189, 1);
    EXPECT_NEAR(levelBehind(lines, {}, {gray(128), 151.5, 150.5}), 210, 1);
    EXPECT_NEAR(levelBehind(lines, inputs(12, 1), {gray(188), 157.5, 153.5}), 36, 1);
    EXPECT_NEAR(levelBehind(lines, {}, {gray(230), 152.5, 152.5}), 165, 1);
}

TEST(CircularScreen, ComparesTheLightWithItsPattern)
{
    const QString rings = u"CICircularScreen"_s;
    EXPECT_NEAR(levelBehind(rings, inputs(12, 0.9), {qRgb(200, 100, 50), 160.5, 157.5}), 243, 1);
    EXPECT_NEAR(levelBehind(rings, {}, {gray(230), 152.5, 152.5}), 171, 1);
    EXPECT_NEAR(levelBehind(rings, inputs(6, 0), {gray(64), 150.5, 150.5}), 82, 1);
}

TEST(Screens, StandAboutTheirCentre)
{
    for (const QString& name : {u"CICircularScreen"_s, u"CIDotScreen"_s, u"CILineScreen"_s}) {
        const NamedInputs moved = {{u"inputCenter"_s, Point{.x = 100, .y = 53}}};
        EXPECT_EQ(
            levelBehind(name, moved, {gray(128), 102.5, 54.5}),
            levelBehind(name, {}, {gray(128), 152.5, 151.5})
        ) << name.toStdString();
        const QImage picture = solidPicture(gray(128), side, side);
        EXPECT_NE(filtered(name, moved, picture), filtered(name, {}, picture));
    }
}

TEST(Screens, TurnCounterClockwise)
{
    const NamedInputs upright = inputs(6, 0.7, std::numbers::pi / 2);
    EXPECT_EQ(
        levelBehind(u"CILineScreen"_s, upright, {gray(128), 151.5, 200.5}),
        levelBehind(u"CILineScreen"_s, {}, {gray(128), 200.5, 151.5})
    );
    const NamedInputs slanted = inputs(24, 0.7, std::numbers::pi / 6);
    EXPECT_GT(levelBehind(u"CILineScreen"_s, slanted, {gray(128), 202.5, 180.5}), 200);
    EXPECT_LT(levelBehind(u"CILineScreen"_s, slanted, {gray(128), 202.5, 120.5}), 200);
}

TEST(Screens, KeepBlackWhiteAndTheLightOfAllTones)
{
    for (const QString& name : {u"CICircularScreen"_s, u"CIDotScreen"_s, u"CILineScreen"_s}) {
        EXPECT_EQ(lightBehind(name, 0), 0);
        EXPECT_EQ(lightBehind(name, 255), 1);
        EXPECT_NEAR(lightBehind(name, 64), 0.0513, 0.02) << name.toStdString();
        EXPECT_NEAR(lightBehind(name, 128), 0.2159, 0.02) << name.toStdString();
        EXPECT_NEAR(lightBehind(name, 230), 0.7913, 0.02) << name.toStdString();
    }
}

TEST(Screens, TakeAWidthBelowOneAsOne)
{
    EXPECT_EQ(
        levelBehind(u"CILineScreen"_s, inputs(0, 0.7), {gray(128), 20.5, 30.5}),
        levelBehind(u"CILineScreen"_s, inputs(1, 0.7), {gray(128), 20.5, 30.5})
    );
}
