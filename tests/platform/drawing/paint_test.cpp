// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/drawing/paint.h>
#include <platform/foundation/literals.h>

#include <support/color_profiles.h>
#include <support/deep_pixels.h>
#include <support/photo_builder.h>
#include <support/pixel_probe.h>
#include <support/temporary_folder.h>

#include <gmock/gmock.h>

#include <cmath>

namespace brenvaldo {
namespace {

using namespace platform::graphics;
using namespace platform::drawing;
using namespace test;

using DeepColor = platform::graphics::Color;

constexpr DeepColor red = {.red = 1, .green = 0, .blue = 0};

Image photoToPaint(const PhotoBuilder& builder)
{
    const TemporaryFolder folder;
    return openedPhoto(builder.write(folder.path(u"photo"_s))).image()->copiedToMemory().value();
}

PhotoBuilder white()
{
    return PhotoBuilder().size(400, 100).solid({255, 255, 255}).format(PhotoFormat::Png);
}

/// The whole of a photo of 400 x 100 pixels.
PaintedArea everywhere(const Paint& paint) { return {.area = {0, 0, 400, 100}, .paint = paint}; }

TEST(PlainPaint, CoversItsAreaAlone)
{
    const QImage pixels
        = painted(photoToPaint(white()), {.area = {60, 20, 300, 50}, .paint = red}).toQImage();

    const auto isRed = [&pixels](int x, int y) { return pixels.pixelColor(x, y) == Qt::red; };
    EXPECT_TRUE(isRed(60, 20));
    EXPECT_TRUE(isRed(359, 69));
    EXPECT_FALSE(isRed(59, 40));
    EXPECT_FALSE(isRed(360, 40));
    EXPECT_FALSE(isRed(100, 19));
    EXPECT_FALSE(isRed(100, 70));
}

TEST(PlainPaint, IsCutToThePhoto)
{
    const Image photo = photoToPaint(white());

    const QImage pixels = painted(photo, {.area = {-10, -10, 20, 20}, .paint = red}).toQImage();

    EXPECT_EQ(pixels.pixelColor(9, 9), QColor(Qt::red));
    EXPECT_EQ(pixels.pixelColor(10, 9), QColor(Qt::white));
    EXPECT_EQ(painted(photo, {.area = {400, 0, 9, 9}, .paint = red}).node(), photo.node());
}

TEST(PlainPaint, FollowsOpacityAndMode)
{
    const PhotoBuilder photo = white().solid({200, 100, 50});
    PaintedArea area
        = everywhere(DeepColor{.red = 30 / 255., .green = 160 / 255., .blue = 220 / 255.});
    area.mode = BlendMode::Multiply;
    area.opacity = 0.5;

    EXPECT_EQ(
        painted(photoToPaint(photo), area).toQImage().pixelColor(300, 50), QColor(112, 81, 47)
    );
}

TEST(PlainPaint, IsAsOpaqueAsItsColor)
{
    const QImage pixels = painted(photoToPaint(white()), everywhere(red.withAlpha(0.2))).toQImage();

    EXPECT_EQ(pixels.pixelColor(5, 5), QColor(255, 204, 204));
}

TEST(PlainPaint, IsBroughtToTheProfileOfThePhoto)
{
    const Image photo = photoToPaint(white().iccProfile(wideProfile()));

    const Image result
        = painted(photo, everywhere(DeepColor{.red = 0.2, .green = 0.6, .blue = 0.4}));

    EXPECT_EQ(result.iccProfile(), wideProfile());
    const QColor shown = result.toQImage().pixelColor(9, 9);
    EXPECT_NEAR(shown.red(), 51, 3);
    EXPECT_NEAR(shown.green(), 153, 3);
    EXPECT_NEAR(shown.blue(), 102, 3);
}

class PlainPaintMode : public testing::TestWithParam<std::tuple<BlendMode, int>>
{
};

TEST_P(PlainPaintMode, IsTheSameOnAPhotoThatCouldBeTranslucent)
{
    const auto [mode, depth] = GetParam();
    const auto photo = [depth = depth](PhotoModel model) {
        return photoToPaint(PhotoBuilder()
                                .size(64, 32)
                                .model(model)
                                .depth(depth)
                                .format(PhotoFormat::Png)
                                .pixels([](int x, int y) {
                                    return Samples{x * 4, y * 8, (x * 7 + y * 11) % 256, 255};
                                }));
    };
    const PaintedArea painting
        = {.area = {10, 5, 40, 20},
           .paint = DeepColor{.red = 0.2, .green = 0.6, .blue = 0.9},
           .mode = mode,
           .opacity = 0.7};

    EXPECT_EQ(
        deepPixels(painted(photo(PhotoModel::Rgb), painting)),
        deepPixels(painted(photo(PhotoModel::RgbAlpha), painting))
    );
}

INSTANTIATE_TEST_SUITE_P(
    Modes,
    PlainPaintMode,
    testing::Combine(
        testing::Values(
            BlendMode::Normal,
            BlendMode::Multiply,
            BlendMode::Overlay,
            BlendMode::Darken,
            BlendMode::Lighten,
            BlendMode::Color,
            BlendMode::Luminosity
        ),
        testing::Values(8, 16)
    )
);

TEST(PlainPaint, AddsToTheLightOfOpaquePhotos)
{
    PaintedArea area = everywhere(DeepColor{.red = 0.4, .green = 0, .blue = 0.2});
    area.mode = BlendMode::PlusLighter;
    EXPECT_EQ(
        painted(photoToPaint(white().solid({100, 50, 230})), area).toQImage().pixelColor(9, 9),
        QColor(202, 50, 255)
    );
    area.mode = BlendMode::PlusDarker;
    EXPECT_EQ(
        painted(photoToPaint(white().solid({200, 250, 230})), area).toQImage().pixelColor(9, 9),
        QColor(47, 0, 26)
    );
}

TEST(ShrunkPainting, HasItsShapeAndItsGradientsSmaller)
{
    PaintedShape painting;
    painting.shape.addRect(10, 20, 30, 40);
    painting.paint = LinearGradient{.fade = {red, clearColor}, .start = {10, 20}, .end = {40, 60}};
    const auto half = QTransform::fromScale(0.5, 0.5);

    const PaintedShape smaller = shrunk(painting, half);

    EXPECT_EQ(smaller.shape.boundingRect(), QRectF(5, 10, 15, 20));
    EXPECT_EQ(std::get<LinearGradient>(smaller.paint).start, QPointF(5, 10));
    EXPECT_EQ(std::get<LinearGradient>(smaller.paint).end, QPointF(20, 30));
    painting.paint = RadialGradient{
        .fade = {red, clearColor}, .centre = {8, 6}, .startRadius = 4, .endRadius = 2};
    const auto radial = std::get<RadialGradient>(shrunk(painting, half).paint);
    EXPECT_EQ(radial.centre, QPointF(4, 3));
    EXPECT_EQ(radial.startRadius, 2);
    EXPECT_EQ(radial.endRadius, 1);
}

TEST(PlainPaint, IsInkOnInk)
{
    const Image photo
        = photoToPaint(PhotoBuilder().model(PhotoModel::Cmyk).format(PhotoFormat::Tiff));

    const Image result = painted(photo, everywhere(DeepColor{.red = 1, .green = 1, .blue = 1}));

    EXPECT_EQ(result.colorModel(), ColorModel::Cmyk);
    EXPECT_GE(result.toQImage().pixelColor(9, 9).lightness(), 250);
}

class LinearFade : public testing::TestWithParam<int>
{
};

TEST_P(LinearFade, DarkensOnItsWayToClear)
{
    const int depth = GetParam();
    const LinearGradient gradient = {.fade = {red, clearColor}, .start = {100, 0}, .end = {300, 0}};

    const Image result = painted(photoToPaint(white().depth(depth)), everywhere(gradient));

    const QImage pixels = deepPixels(result);
    const double step = depth == 8 ? 257 : 1;
    EXPECT_EQ(result.bitsPerComponent(), depth);
    for (const int x : {100, 149, 200, 255, 256, 257, 299}) {
        const double t = (x + 0.5 - 100) / 200;
        const double alpha = 1 - t;
        const QRgba64 pixel = deepPixel(pixels, x, 60);
        EXPECT_NEAR(pixel.red(), ((1 - t) * alpha + 1 - alpha) * 65535, step);
        EXPECT_NEAR(pixel.green(), (1 - alpha) * 65535, step);
    }
    EXPECT_EQ(deepPixel(pixels, 99, 60).green(), 65535);
    EXPECT_EQ(deepPixel(pixels, 300, 60).green(), 65535);
}

INSTANTIATE_TEST_SUITE_P(Depths, LinearFade, testing::Values(8, 16));

TEST(LinearFade, RunsAlongAnyLine)
{
    const DeepColor blue = {.red = 0, .green = 0, .blue = 1};
    const LinearGradient gradient = {.fade = {red, blue}, .start = {100, 100}, .end = {200, 0}};

    const QImage pixels = painted(photoToPaint(white()), everywhere(gradient)).toQImage();

    for (const QPoint point : {QPoint(110, 95), QPoint(150, 50), QPoint(160, 90), QPoint(190, 5)}) {
        const double t
            = ((point.x() + 0.5 - 100) * 100 - (point.y() + 0.5 - 100) * 100) / (2 * 100 * 100);
        EXPECT_NEAR(pixels.pixelColor(point).red(), (1 - t) * 255, 1);
        EXPECT_NEAR(pixels.pixelColor(point).blue(), t * 255, 1);
    }
    EXPECT_EQ(pixels.pixelColor(99, 99), QColor(Qt::white));
}

TEST(LinearFade, PaintsNothingAlongNoLine)
{
    const LinearGradient gradient = {.fade = {red, red}, .start = {50, 50}, .end = {50, 50}};

    const QImage pixels = painted(photoToPaint(white()), everywhere(gradient)).toQImage();

    EXPECT_EQ(pixels.pixelColor(50, 50), QColor(Qt::white));
}

QImage disc(double startRadius, double endRadius)
{
    const DeepColor black = {};
    const DeepColor green = {.red = 0, .green = 1, .blue = 0};
    const RadialGradient gradient
        = {.fade = {black, green},
           .centre = {100.5, 50.5},
           .startRadius = startRadius,
           .endRadius = endRadius};
    return painted(photoToPaint(white()), everywhere(gradient)).toQImage();
}

TEST(RadialFade, RunsFromOneCircleToTheOther)
{
    EXPECT_NEAR(disc(0, 40).pixelColor(120, 50).green(), 128, 1);
    EXPECT_NEAR(disc(0, 40).pixelColor(100, 20).green(), 191, 1);
    EXPECT_NEAR(disc(20, 40).pixelColor(130, 50).green(), 128, 1);
    EXPECT_NEAR(disc(40, 0).pixelColor(110, 50).green(), 191, 1);
    EXPECT_NEAR(disc(40, 0).pixelColor(103, 54).green(), 223, 1);
}

TEST(RadialFade, LeavesWhatIsOutsideOfItsCircles)
{
    EXPECT_EQ(disc(0, 40).pixelColor(141, 50), QColor(Qt::white));
    EXPECT_NE(disc(0, 40).pixelColor(139, 50), QColor(Qt::white));
    EXPECT_EQ(disc(20, 40).pixelColor(100, 50), QColor(Qt::white));
    EXPECT_EQ(disc(20, 40).pixelColor(119, 50), QColor(Qt::white));
    EXPECT_EQ(disc(40, 20).pixelColor(119, 50), QColor(Qt::white));
    EXPECT_EQ(disc(30, 30).pixelColor(130, 50), QColor(Qt::white));
}

TEST(RadialFade, HasSmoothRims)
{
    EXPECT_NEAR(disc(40, 0).pixelColor(140, 50).blue(), 128, 1);
    EXPECT_NEAR(disc(20, 40).pixelColor(120, 50).blue(), 128, 1);
}

} // namespace
} // namespace brenvaldo
