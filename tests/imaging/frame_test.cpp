// SPDX-License-Identifier: GPL-3.0-or-later
#include "plain_colors.h"

#include <imaging/dv_image_handling.h>
#include <platform/foundation/literals.h>

#include <support/geometry_printing.h>
#include <support/log_lines.h>
#include <support/pixel_probe.h>
#include <support/result_printing.h>
#include <support/temporary_folder.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>

using namespace brenvaldo;
using namespace brenvaldo::imaging;
using namespace brenvaldo::test;

namespace {

const QColor whitePixel(255, 255, 255);
const QColor photoPixel(0, 0, 255);

/// Frames around a blue photo of 100 x 100 pixels.
class Frame : public testing::Test
{
protected:
    Frame() { QDir().mkpath(folder.path(u"out"_s)); }

    [[nodiscard]] QString photo() const
    {
        return PhotoBuilder()
            .format(PhotoFormat::Png)
            .size(100, 100)
            .solid({0, 0, 255})
            .write(folder.path(u"a.png"_s));
    }

    ResultWord add(const QString& path, FrameSettings settings, double opacity)
    {
        settings.opacity = qRound(opacity * 100);
        OutputTail tail;
        tail.compressionLevel = u"10"_s;
        tail.myFileType = type;
        return handling.finish(handling.hAddFrame(
            {.source = path, .destinationBase = folder.path(u"out/a"_s)}, settings, tail
        ));
    }

    QImage framed(const FrameSettings& settings, double opacity = 1)
    {
        EXPECT_EQ(add(photo(), settings, opacity), ResultWord::Ok);
        return storedPixels(folder.path(u"out/a.png"_s));
    }

    std::optional<platform::graphics::Image> shown(const FrameSettings& settings)
    {
        return handling.hAddFramePreview(
            *openedPhoto(photo()).image({.access = platform::codecs::SourceAccess::Random}),
            settings
        );
    }

    /// Colours along the diagonal, and the other two corners.
    static void expectBand(const QImage& picture, int begin, int end)
    {
        const int last = picture.width() - 1;
        for (int i = 0; i < picture.width() / 2; ++i) {
            const QColor expected = i >= begin && i < end ? redPixel : photoPixel;
            for (const QPoint& place :
                 {QPoint(i, i),
                  QPoint(last - i, i),
                  QPoint(i, last - i),
                  QPoint(last - i, last - i)})
                EXPECT_EQ(picture.pixelColor(place), expected) << place.x() << ' ' << place.y();
        }
    }

    TemporaryFolder folder;
    DVImageHandling handling;
    QString type = u"public.png"_s;
};

} // namespace

TEST_F(Frame, InsideCoversTheOutermostPixelsAndClosesAllCorners)
{
    const QImage picture = framed({.frameType = 0, .thickness = 10, .color = plainRed});
    EXPECT_EQ(picture.size(), QSize(100, 100));
    expectBand(picture, 0, 10);
}

TEST_F(Frame, InsideLeavesThePhotoOutsideOfItsInset)
{
    expectBand(framed({.frameType = 0, .thickness = 10, .inset = 20, .color = plainRed}), 20, 30);
}

TEST_F(Frame, OutsideGrowsTheCanvasAndLeavesThePhotoAsItIs)
{
    const QString path = PhotoBuilder()
                             .format(PhotoFormat::Png)
                             .size(100, 100)
                             .gradient()
                             .write(folder.path(u"a.png"_s));
    const FrameSettings settings{.frameType = 1, .thickness = 10, .inset = 33, .color = plainRed};
    ASSERT_EQ(add(path, settings, 1), ResultWord::Ok);
    const QImage picture = storedPixels(folder.path(u"out/a.png"_s));

    ASSERT_EQ(picture.size(), QSize(120, 120));
    EXPECT_EQ(picture.copy(10, 10, 100, 100), storedPixels(path));
    for (const QPoint& place :
         {QPoint(0, 0),
          QPoint(119, 0),
          QPoint(0, 119),
          QPoint(119, 119),
          QPoint(9, 60),
          QPoint(60, 110)})
        EXPECT_EQ(picture.pixelColor(place), redPixel);
}

TEST_F(Frame, OutsideIsTheSameWithAnyInset)
{
    const FrameSettings settings{.frameType = 1, .thickness = 10, .color = plainRed};
    FrameSettings inset = settings;
    inset.inset = 33;
    EXPECT_EQ(framed(settings), framed(inset));
}

TEST_F(Frame, OutsideShowsWhiteBehindATranslucentColour)
{
    type = u"public.jpeg"_s;
    ASSERT_EQ(add(photo(), {.frameType = 1, .thickness = 16, .color = {}}, 0.5), ResultWord::Ok);
    const QColor margin = storedPixels(folder.path(u"out/a.jpg"_s)).pixelColor(4, 60);
    EXPECT_NEAR(margin.red(), 128, 2);
    EXPECT_NEAR(margin.green(), 128, 2);
    EXPECT_NEAR(margin.blue(), 128, 2);
}

TEST_F(Frame, IsBlendedAndTranslucent)
{
    const QColor grey(128, 128, 128);
    const platform::graphics::Color half{.red = 0.5, .green = 0.5, .blue = 0.5};
    FrameSettings settings{.thickness = 10, .blendIndex = 3, .color = half};
    EXPECT_EQ(framed(settings).pixelColor(1, 1), QColor(0, 0, 128));
    settings.blendIndex = 0;
    EXPECT_EQ(framed(settings).pixelColor(1, 1), grey);
    EXPECT_EQ(
        framed({.thickness = 10, .color = plainRed}, 0.01).pixelColor(1, 1), QColor(3, 0, 252)
    );
}

TEST_F(Frame, InsideFadesAlongARectangleThatLosesTheInsetOnce)
{
    FrameSettings settings{
        .thickness = 100, .inset = 20, .gradientState = 1, .angleIndex = 0, .color = plainRed};
    // The middle of the fade stands at 60, so it begins at 10 and ends at 110.
    const QImage right = framed(settings);
    EXPECT_NEAR(right.pixelColor(60, 50).blue(), 128, 2);
    EXPECT_NEAR(right.pixelColor(35, 50).blue(), 64, 2);
    settings.angleIndex = 1;
    const QImage up = framed(settings);
    EXPECT_NEAR(up.pixelColor(50, 39).blue(), 128, 2);
    EXPECT_NEAR(up.pixelColor(50, 64).blue(), 64, 2);
    settings.gradientState = 0;
    EXPECT_EQ(framed(settings).pixelColor(60, 50), redPixel);
}

TEST_F(Frame, OutsideFadesFromTheCornerOfTheCanvas)
{
    const FrameSettings settings{
        .frameType = 1, .thickness = 10, .gradientState = 1, .angleIndex = 0, .color = {}};
    const QImage picture = framed(settings);
    EXPECT_NEAR(picture.pixelColor(50, 2).red(), 128, 3);
    EXPECT_NEAR(picture.pixelColor(0, 60).red(), 1, 2);
    EXPECT_EQ(picture.pixelColor(110, 60), whitePixel);
}

TEST_F(Frame, WithoutThicknessIsNone)
{
    EXPECT_EQ(framed({.thickness = 0, .color = plainRed}), storedPixels(photo()));
    EXPECT_EQ(framed({.frameType = 1, .thickness = 0, .color = plainRed}), storedPixels(photo()));
}

TEST_F(Frame, OfAnyMeasureIsDrawn)
{
    for (const std::int64_t far : {std::int64_t{100'000}, INT64_MAX, INT64_MIN}) {
        framed({.thickness = 10, .inset = far, .color = plainRed});
        framed({.thickness = far, .inset = 5, .color = plainRed});
    }
}

TEST_F(Frame, OfAnotherTypeWritesNothing)
{
    const auto outcome = handling.hAddFrame(
        {.source = photo(), .destinationBase = folder.path(u"out/a"_s)},
        {.frameType = 2, .thickness = 10},
        OutputTail()
    );
    EXPECT_TRUE(std::holds_alternative<WordOfPictureBefore>(outcome));
    EXPECT_EQ(shown({.frameType = 2}), std::nullopt);
}

TEST_F(Frame, FailsWithoutACanvas)
{
    EXPECT_EQ(add(photo(), {.frameType = 1, .thickness = -50}, 1), ResultWord::Failed);
    EXPECT_EQ(add(photo(), {.frameType = 1, .thickness = INT64_MAX}, 1), ResultWord::Failed);
    EXPECT_TRUE(QDir(folder.path(u"out"_s)).isEmpty());
}

TEST_F(Frame, FailsForAnUnreadablePhoto)
{
    const QString missing = folder.path(u"missing.png"_s);
    {
        const LogLines log;
        EXPECT_EQ(add(missing, {.frameType = 0, .thickness = 3}, 1), ResultWord::Failed);
        EXPECT_TRUE(log.lines().contains(u"no imageRef"_s));
    }
    {
        const LogLines log;
        EXPECT_EQ(add(missing, {.frameType = 1, .thickness = 3}, 1), ResultWord::Failed);
        EXPECT_FALSE(log.lines().contains(u"no imageRef"_s));
    }
    const QString damaged = folder.write(u"text.png"_s, "text");
    EXPECT_EQ(add(damaged, {.frameType = 0, .thickness = 3}, 1), ResultWord::Failed);
    type = u"com.adobe.pdf"_s;
    EXPECT_EQ(add(missing, {.frameType = 0, .thickness = 3}, 1), ResultWord::Failed);
    EXPECT_EQ(add(damaged, {.frameType = 0, .thickness = 3}, 1), ResultWord::NotSupported);
    EXPECT_TRUE(QDir(folder.path(u"out"_s)).isEmpty());
}

TEST_F(Frame, IsDrawnOnStoredPixels)
{
    const QString path = PhotoBuilder().size(40, 20).orientation(6).write(folder.path(u"a.jpg"_s));
    ASSERT_EQ(add(path, {.frameType = 1, .thickness = 5}, 1), ResultWord::Ok);
    EXPECT_EQ(storedPixels(folder.path(u"out/a.png"_s)).size(), QSize(50, 30));
    EXPECT_EQ(uprightPixels(folder.path(u"out/a.png"_s)).size(), QSize(30, 50));
}

TEST_F(Frame, LooksTheSameInThePreviewAndInTheFile)
{
    for (const int frameType : {0, 1}) {
        const FrameSettings settings{
            .frameType = frameType,
            .thickness = 12,
            .inset = 7,
            .opacity = 60,
            .blendIndex = 4,
            .gradientState = 1,
            .angleIndex = 1,
            .color = plainRed};
        const auto preview = shown(settings);
        ASSERT_TRUE(preview);
        EXPECT_EQ(preview->toQImage(), framed(settings, 0.6)) << frameType;
    }
}

TEST_F(Frame, IsStrongInThePreviewWithoutAnOpacity)
{
    const auto preview = shown({.thickness = 10, .opacity = 0, .color = plainRed});
    ASSERT_TRUE(preview);
    EXPECT_EQ(preview->toQImage().pixelColor(1, 1), redPixel);
}

TEST_F(Frame, AroundAPhotoHasTheLastOpacityOfTheObject)
{
    const FrameSettings unset{.frameType = 1, .thickness = 10, .opacity = 0, .color = plainRed};
    const auto margin = [&] {
        EXPECT_EQ(add(photo(), unset, 0), ResultWord::Ok);
        return storedPixels(folder.path(u"out/a.png"_s)).pixelColor(1, 1);
    };
    EXPECT_EQ(margin(), whitePixel); // nothing was before
    framed({.frameType = 1, .thickness = 10, .color = plainRed}, 0.2);
    EXPECT_EQ(margin(), QColor(255, 204, 204));
    framed({.frameType = 0, .thickness = 10, .color = plainRed}, 0.4);
    EXPECT_EQ(margin(), QColor(255, 153, 153));
    static_cast<void>(shown({.thickness = 10, .opacity = 60, .color = plainRed}));
    EXPECT_EQ(margin(), QColor(255, 102, 102));
    const auto image = openedPhoto(photo()).image();
    static_cast<void>(handling.hAddRoundingsPreview(*image, {.opacity = 80}));
    EXPECT_EQ(margin(), QColor(255, 51, 51));
    TintSettings tint;
    tint.opacity = 40;
    static_cast<void>(handling.addTintToImage2Preview(*image, tint));
    EXPECT_EQ(margin(), QColor(255, 153, 153));
}

TEST_F(Frame, IsDrawnInsideOfAPictureInMemory)
{
    const auto image = DVImageHandling::hStringToCGImageRef(PhotoBuilder()
                                                                .size(100, 100)
                                                                .solid({0, 0, 255})
                                                                .dotsPerInch(300)
                                                                .write(folder.path(u"a.jpg"_s)));
    ASSERT_TRUE(image);
    const auto framed = DVImageHandling::peeAddBorderToImageInside(
        *image, {.frameType = 1, .thickness = 10, .inset = 0, .opacity = 0, .color = plainRed}
    );
    EXPECT_EQ(framed.dotsPerInch(), 72);
    EXPECT_EQ(framed.pixelSize(), (platform::graphics::PixelSize{100, 100}));
    EXPECT_EQ(framed.toQImage().pixelColor(99, 99), redPixel);
}

TEST_F(Frame, OfAGalleryRunsOnTheEdgeAndReplacesTheFile)
{
    const QString path = photo();
    EXPECT_EQ(handling.addBorderToImage2(path, plainRed, 10), ResultWord::Ok);
    EXPECT_EQ(handling.storeResult(), ResultWord::Ok);
    expectBand(storedPixels(path), 0, 5);
}

TEST_F(Frame, OfAGalleryFailsForAnUnreadablePhoto)
{
    handling.addBorderToImage2(photo(), plainRed, 10);
    const QString missing = folder.path(u"missing.png"_s);
    EXPECT_EQ(handling.addBorderToImage2(missing, plainRed, 10), ResultWord::Failed);
    EXPECT_EQ(handling.storeResult(), ResultWord::Failed);
    EXPECT_FALSE(QFile::exists(missing));
}
