// SPDX-License-Identifier: GPL-3.0-or-later
#include "plain_colors.h"
#include "rounding_words.h"

#include <imaging/dv_image_handling.h>
#include <platform/foundation/literals.h>

#include <support/geometry_printing.h>
#include <support/pixel_probe.h>
#include <support/result_printing.h>
#include <support/temporary_folder.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

#include <QDir>

using namespace brenvaldo;
using namespace brenvaldo::imaging;
using namespace brenvaldo::test;

namespace {

/// Rounded pictures of a blue photo of 400 x 300 pixels.
class Roundings : public testing::Test
{
protected:
    Roundings() { QDir().mkpath(folder.path(u"out"_s)); }

    [[nodiscard]] static PhotoBuilder blue()
    {
        return PhotoBuilder().format(PhotoFormat::Png).size(400, 300).solid({0, 0, 255, 255});
    }

    ResultWord add(const QString& path, const RoundingSettings& settings)
    {
        OutputTail tail;
        tail.compressionLevel = u"10"_s;
        tail.myFileType = type;
        return handling.finish(handling.hAddRoundings(
            {.source = path, .destinationBase = folder.path(u"out/a"_s)}, settings, tail
        ));
    }

    QImage rounded(const RoundingSettings& settings) { return roundedPhoto(blue(), settings); }

    QImage roundedPhoto(const PhotoBuilder& photo, const RoundingSettings& settings)
    {
        EXPECT_EQ(add(photo.write(folder.path(u"a.png"_s)), settings), ResultWord::Ok);
        return storedPixels(folder.path(u"out/a.png"_s));
    }

    TemporaryFolder folder;
    DVImageHandling handling;
    QString type = u"public.png"_s;
};

} // namespace

TEST_F(Roundings, CutTransparentCorners)
{
    const QImage picture = rounded({.radius = 50});
    EXPECT_EQ(picture.size(), QSize(400, 300));
    for (const QPoint& corner : {QPoint(1, 1), QPoint(398, 1), QPoint(1, 298), QPoint(398, 298)})
        EXPECT_EQ(picture.pixelColor(corner).alpha(), 0);
    EXPECT_EQ(picture.pixelColor(0, 150), bluePixel);
    EXPECT_EQ(picture.pixelColor(200, 299), bluePixel);
}

TEST_F(Roundings, WithoutRadiusKeepTheRectangle)
{
    const QImage picture = rounded({.radius = 0});
    EXPECT_EQ(picture.pixelColor(0, 0), bluePixel);
    EXPECT_EQ(picture.pixelColor(399, 299), bluePixel);
}

TEST_F(Roundings, OfACircleShowTheMiddleOfThePhoto)
{
    const auto stripes = [](int x, int) { return Samples{x < 50 || x >= 350 ? 255 : 0, x / 2, 0}; };
    const QImage picture = roundedPhoto(blue().pixels(stripes), {.type = circle});

    ASSERT_EQ(picture.size(), QSize(300, 300));
    EXPECT_EQ(picture.pixelColor(1, 150), QColor(0, 25, 0));
    EXPECT_EQ(picture.pixelColor(298, 150), QColor(0, 174, 0));
    EXPECT_EQ(picture.pixelColor(40, 40).alpha(), 0);
}

TEST_F(Roundings, OfACircleShowTheMiddleOfAHighPhoto)
{
    const auto rows = [](int, int y) { return Samples{y / 2, 0, 0}; };
    const QImage picture = roundedPhoto(blue().size(300, 401).pixels(rows), {.type = circle});

    ASSERT_EQ(picture.size(), QSize(300, 300));
    EXPECT_EQ(picture.pixelColor(150, 0 + 1), QColor((51 + 1) / 2, 0, 0));
    EXPECT_EQ(picture.pixelColor(150, 298), QColor((51 + 298) / 2, 0, 0));
}

TEST_F(Roundings, OfAnEllipseTouchAllSides)
{
    const QImage picture = rounded({.type = ellipse});
    EXPECT_EQ(picture.size(), QSize(400, 300));
    EXPECT_EQ(picture.pixelColor(1, 150).alpha(), 255);
    EXPECT_EQ(picture.pixelColor(200, 1).alpha(), 255);
    EXPECT_EQ(picture.pixelColor(50, 30).alpha(), 0);
}

TEST_F(Roundings, HaveABorderAroundTheUnscaledPhoto)
{
    const QString path = PhotoBuilder()
                             .format(PhotoFormat::Png)
                             .size(400, 300)
                             .gradient()
                             .write(folder.path(u"a.png"_s));
    const RoundingSettings settings{
        .radius = 20,
        .borderColor = plainRed,
        .borderState = 1,
        .borderWidth = 10,
        .borderPosition = around};
    ASSERT_EQ(add(path, settings), ResultWord::Ok);
    const QImage picture = storedPixels(folder.path(u"out/a.png"_s));

    ASSERT_EQ(picture.size(), QSize(420, 320));
    const QRect inner(50, 50, 300, 200);
    EXPECT_EQ(
        picture.convertToFormat(QImage::Format_RGB32).copy(inner.translated(10, 10)),
        storedPixels(path).copy(inner)
    );
    EXPECT_EQ(picture.pixelColor(0, 160), redPixel);
    EXPECT_EQ(picture.pixelColor(9, 160), redPixel);
    EXPECT_EQ(picture.pixelColor(210, 319), redPixel);
    EXPECT_EQ(picture.pixelColor(1, 1).alpha(), 0);
}

TEST_F(Roundings, HaveABorderOnThePhoto)
{
    RoundingSettings settings{
        .type = ellipse,
        .borderColor = plainRed,
        .borderState = 1,
        .borderWidth = 10,
        .opacity = 100};
    const QImage picture = rounded(settings);
    EXPECT_EQ(picture.size(), QSize(400, 300));
    EXPECT_EQ(picture.pixelColor(5, 150), redPixel);
    EXPECT_EQ(picture.pixelColor(12, 150), bluePixel);
    settings.borderState = 0;
    EXPECT_EQ(rounded(settings).pixelColor(5, 150), bluePixel);
}

TEST_F(Roundings, DrawABorderWithoutOpacityAtFullStrength)
{
    RoundingSettings settings{
        .type = ellipse, .borderColor = plainRed, .borderState = 1, .borderWidth = 20};
    for (const auto& [opacity, share] :
         {std::pair(0, 1.0), std::pair(150, 1.0), std::pair(-1, 0.1), std::pair(40, 0.4)}) {
        settings.opacity = opacity;
        EXPECT_NEAR(rounded(settings).pixelColor(10, 150).red(), 255 * share, 1) << opacity;
    }
}

TEST_F(Roundings, BlendAndFadeTheBorder)
{
    RoundingSettings settings{
        .type = ellipse,
        .borderColor = plainRed,
        .borderState = 1,
        .borderWidth = 20,
        .angleIndex = 1,
        .blendIndex = 3};
    EXPECT_EQ(rounded(settings).pixelColor(10, 150), QColor(0, 0, 0));
    settings.blendIndex = 0;
    settings.gradientState = 1;
    const QImage up = rounded(settings);
    EXPECT_NEAR(up.pixelColor(200, 290).red(), 239, 4);
    EXPECT_NEAR(up.pixelColor(200, 290).blue(), 8, 4);
    EXPECT_NEAR(up.pixelColor(10, 150).blue(), 128, 3);
    settings.angleIndex = 0;
    EXPECT_NEAR(rounded(settings).pixelColor(385, 150).blue(), 246, 4);
}

TEST_F(Roundings, LieOnABackgroundWithAMargin)
{
    RoundingSettings settings{
        .radius = 50, .backgroundColor = plainGreen, .backgroundState = 1, .margin = 20};
    const QImage picture = rounded(settings);
    ASSERT_EQ(picture.size(), QSize(440, 340));
    EXPECT_EQ(picture.pixelColor(0, 0), greenPixel);
    EXPECT_EQ(picture.pixelColor(22, 22), greenPixel);
    EXPECT_EQ(picture.pixelColor(220, 319), bluePixel);
    EXPECT_EQ(picture.pixelColor(220, 320), greenPixel);

    settings.backgroundState = 0;
    EXPECT_EQ(rounded(settings).size(), QSize(400, 300));
}

TEST_F(Roundings, HaveEightBitsAndAlphaOfEveryPhoto)
{
    struct Kind
    {
        PhotoModel model;
        int depth;
        QColor expected;
    };
    const Kind kinds[] = {
        {PhotoModel::Rgb, 16, {90, 60, 30}},
        {PhotoModel::Gray, 8, {90, 90, 90}},
        {PhotoModel::Gray, 16, {90, 90, 90}},
        {PhotoModel::GrayAlpha, 8, {90, 90, 90, 60}},
        {PhotoModel::RgbAlpha, 16, {90, 60, 30, 120}},
    };
    for (const Kind& kind : kinds) {
        Samples samples = {90, 60, 30, 120};
        const PhotoBuilder photo = blue().model(kind.model).depth(kind.depth).solid(samples);
        roundedPhoto(photo, {.radius = 9});
        const auto written = openedPhoto(folder.path(u"out/a.png"_s)).image();
        ASSERT_TRUE(written);
        EXPECT_EQ(written->bitsPerComponent(), 8);
        EXPECT_EQ(written->colorModel(), platform::graphics::ColorModel::Rgb);
        EXPECT_TRUE(written->hasAlpha());
        const QColor pixel = written->toQImage().pixelColor(200, 150);
        EXPECT_NEAR(pixel.red(), kind.expected.red(), 2);
        EXPECT_NEAR(pixel.green(), kind.expected.green(), 2);
        EXPECT_NEAR(pixel.blue(), kind.expected.blue(), 2);
        EXPECT_EQ(pixel.alpha(), kind.expected.alpha());
    }
}

TEST_F(Roundings, LookTheSameInThePreviewAndInTheFile)
{
    const RoundingSettings settings{
        .radius = 60,
        .borderColor = plainRed,
        .backgroundColor = plainGreen,
        .borderState = 1,
        .borderWidth = 15,
        .backgroundState = 1,
        .opacity = 70,
        .gradientState = 1,
        .angleIndex = 2,
        .borderPosition = around,
        .margin = 8};
    const auto photo = openedPhoto(blue().write(folder.path(u"a.png"_s)))
                           .image({.access = platform::codecs::SourceAccess::Random});
    const auto shown = handling.hAddRoundingsPreview(*photo, settings);
    ASSERT_TRUE(shown);
    EXPECT_EQ(shown->toQImage(), rounded(settings));
}

TEST_F(Roundings, AreDrawnOnStoredPixels)
{
    const QString path = PhotoBuilder().size(40, 20).orientation(6).write(folder.path(u"a.jpg"_s));
    ASSERT_EQ(add(path, {.type = ellipse}), ResultWord::Ok);
    EXPECT_EQ(storedPixels(folder.path(u"out/a.png"_s)).size(), QSize(40, 20));
    EXPECT_EQ(uprightPixels(folder.path(u"out/a.png"_s)).size(), QSize(20, 40));
}

TEST_F(Roundings, OfAnyMeasureAreDrawn)
{
    for (const std::int64_t far : {std::int64_t{100'000}, INT64_MAX, INT64_MIN}) {
        rounded({.radius = far});
        rounded({.radius = 20, .borderState = 1, .borderWidth = far});
        rounded({.type = ellipse, .borderState = 1, .borderWidth = far});
    }
}

TEST_F(Roundings, FailWithoutAPhotoOrACanvas)
{
    EXPECT_EQ(add(folder.path(u"missing.png"_s), {.radius = 5}), ResultWord::Failed);
    const QString photo = blue().write(folder.path(u"a.png"_s));
    EXPECT_EQ(
        add(photo, {.radius = 5, .backgroundState = 1, .margin = INT64_MAX}), ResultWord::Failed
    );
    EXPECT_EQ(
        add(photo, {.borderState = 1, .borderWidth = -150, .borderPosition = around}),
        ResultWord::Failed
    );
    EXPECT_TRUE(QDir(folder.path(u"out"_s)).isEmpty());
}
