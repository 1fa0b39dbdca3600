// SPDX-License-Identifier: GPL-3.0-or-later
#include <imaging/dv_image_handling.h>
#include <imaging/rotate_settings.h>

#include <platform/foundation/literals.h>

#include <support/color_profiles.h>
#include <support/geometry_printing.h>
#include <support/log_lines.h>
#include <support/pixel_probe.h>
#include <support/result_printing.h>
#include <support/temporary_folder.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

#include <QFile>

#include <limits>

using namespace brenvaldo;
using namespace brenvaldo::imaging;
using platform::graphics::ColorModel;
using platform::graphics::PixelSize;
using test::PhotoFormat;
using test::PhotoModel;

namespace {

constexpr platform::graphics::Color orange = {.red = 1, .green = 0.5, .blue = 0};
const QColor orangePixel(255, 128, 0);

test::PhotoBuilder cornersPhoto(int width, int height)
{
    return test::PhotoBuilder().format(PhotoFormat::Png).size(width, height).corners();
}

RotateSettings turn(float degrees)
{
    RotateSettings settings;
    settings.degrees = degrees;
    return settings;
}

RotateSettings onCanvas(float degrees, int margin)
{
    return {.degrees = degrees, .hasCanvas = true, .canvasColor = orange, .canvasMargin = margin};
}

class Rotating : public testing::Test
{
protected:
    ResultWord rotate(const QString& path, const RotateSettings& settings, const QString& type)
    {
        OutputTail tail;
        tail.compressionLevel = u"10"_s;
        tail.myFileType = type;
        return handling.finish(DVImageHandling::hRotatePicture(
            {.source = path, .destinationBase = folder.path(u"out"_s)}, settings, tail
        ));
    }

    QImage rotated(const QString& path, const RotateSettings& settings)
    {
        EXPECT_EQ(rotate(path, settings, u"public.png"_s), ResultWord::Ok);
        return test::storedPixels(folder.path(u"out.png"_s));
    }

    QString write(const test::PhotoBuilder& photo) const
    {
        return photo.write(folder.path(u"a.png"_s));
    }

    test::TemporaryFolder folder;
    DVImageHandling handling;
};

} // namespace

TEST_F(Rotating, TurnsQuartersCounterClockwise)
{
    const QImage turned = rotated(write(cornersPhoto(40, 30)), turn(90));

    EXPECT_EQ(turned.size(), QSize(30, 40));
    EXPECT_EQ(test::cornerColors(turned), "GWRB");
}

TEST_F(Rotating, LeavesTransparentCornersInTheBoxAroundTheTurnedPhoto)
{
    const QImage turned = rotated(
        write(test::PhotoBuilder().format(PhotoFormat::Png).size(100, 100).solid({9})), turn(45)
    );

    EXPECT_EQ(turned.size(), QSize(141, 141));
    EXPECT_EQ(turned.pixelColor(2, 2).alpha(), 0);
    EXPECT_EQ(turned.pixelColor(138, 138).alpha(), 0);
    EXPECT_EQ(turned.pixelColor(70, 70).alpha(), 255);
}

TEST_F(Rotating, TurnsTheStoredPixels)
{
    const QImage turned = rotated(write(cornersPhoto(40, 30).orientation(6)), turn(0));

    EXPECT_EQ(turned.size(), QSize(40, 30));
    EXPECT_EQ(test::cornerColors(turned), "RGBW");
    EXPECT_EQ(test::openedPhoto(folder.path(u"out.png"_s)).header().orientation, 6);
}

TEST_F(Rotating, AddsAMarginInTheColourOfTheCanvas)
{
    const QImage framed = rotated(write(cornersPhoto(100, 50)), onCanvas(0, 20));

    ASSERT_EQ(framed.size(), QSize(140, 90));
    EXPECT_EQ(framed.pixelColor(0, 0), orangePixel);
    EXPECT_EQ(framed.pixelColor(19, 45), orangePixel);
    EXPECT_EQ(framed.pixelColor(120, 45), orangePixel);
    EXPECT_EQ(framed.pixelColor(139, 89), orangePixel);
    EXPECT_EQ(test::cornerColors(framed.copy(20, 20, 100, 50)), "RGBW");
    EXPECT_TRUE(test::openedPhoto(folder.path(u"out.png"_s)).header().hasAlpha);
}

TEST_F(Rotating, FillsTheCornersWithTheColourOfTheCanvas)
{
    const QImage turned = rotated(write(cornersPhoto(100, 100)), onCanvas(45, 0));

    ASSERT_EQ(turned.size(), QSize(141, 141));
    EXPECT_EQ(turned.pixelColor(2, 2), orangePixel);
    EXPECT_EQ(turned.pixelColor(138, 138), orangePixel);
    EXPECT_EQ(turned.pixelColor(70, 70), QColor(40, 40, 40));
}

TEST_F(Rotating, CutsOffWithANegativeMargin)
{
    const QImage cut = rotated(write(cornersPhoto(100, 50)), onCanvas(0, -5));

    EXPECT_EQ(cut.size(), QSize(90, 40));
    EXPECT_EQ(test::cornerColors(cut), "RGBW");
}

TEST_F(Rotating, FailsWhereNoCanvasCanBeMade)
{
    const QString path = write(cornersPhoto(100, 50));

    for (const int margin : {-25, -60, 2'000'000, std::numeric_limits<int>::max()})
        EXPECT_EQ(rotate(path, onCanvas(0, margin), u"public.png"_s), ResultWord::Failed) << margin;
    EXPECT_EQ(
        rotate(path, turn(std::numeric_limits<float>::quiet_NaN()), u"public.png"_s),
        ResultWord::Failed
    );
    EXPECT_FALSE(QFile::exists(folder.path(u"out.png"_s)));
}

TEST_F(Rotating, LaysEveryKindOfPhotoOnAColouredCanvas)
{
    for (const PhotoModel model :
         {PhotoModel::Gray, PhotoModel::GrayAlpha, PhotoModel::Rgb, PhotoModel::RgbAlpha}) {
        for (const int depth : {8, 16}) {
            const bool hasAlpha = model == PhotoModel::GrayAlpha || model == PhotoModel::RgbAlpha;
            const test::Samples half = model == PhotoModel::GrayAlpha
                ? test::Samples{100, 128}
                : test::Samples{100, 100, 100, 128};
            const QString path = write(test::PhotoBuilder()
                                           .format(PhotoFormat::Png)
                                           .size(20, 10)
                                           .model(model)
                                           .depth(depth)
                                           .solid(half));
            const QImage laid = rotated(path, onCanvas(0, 3));

            EXPECT_EQ(laid.size(), QSize(26, 16));
            EXPECT_EQ(laid.pixelColor(1, 1), orangePixel);
            EXPECT_EQ(
                laid.pixelColor(10, 8), hasAlpha ? QColor(177, 114, 50) : QColor(100, 100, 100)
            );
            EXPECT_EQ(test::openedPhoto(folder.path(u"out.png"_s)).header().bitsPerComponent, 8);
        }
    }
}

TEST_F(Rotating, BringsTheColoursOfAPhotoToThoseOfTheCanvas)
{
    const QString path = write(test::PhotoBuilder()
                                   .format(PhotoFormat::Png)
                                   .size(20, 10)
                                   .solid({200, 50, 50})
                                   .iccProfile(test::wideProfile()));

    const QColor laid = rotated(path, onCanvas(0, 3)).pixelColor(10, 8);

    EXPECT_GT(laid.red(), 205);
    EXPECT_TRUE(test::openedPhoto(folder.path(u"out.png"_s)).image()->iccProfile().isEmpty());
}

TEST_F(Rotating, KeepsDepthAndModelWithoutACanvas)
{
    const QString path = test::PhotoBuilder()
                             .format(PhotoFormat::Tiff)
                             .size(20, 10)
                             .model(PhotoModel::Gray)
                             .depth(16)
                             .write(folder.path(u"deep.tiff"_s));

    ASSERT_EQ(rotate(path, turn(30), u"public.tiff"_s), ResultWord::Ok);

    const auto header = test::openedPhoto(folder.path(u"out.tiff"_s)).header();
    EXPECT_EQ(header.bitsPerComponent, 16);
    EXPECT_EQ(header.colorModel, ColorModel::Gray);
    EXPECT_TRUE(header.hasAlpha);
}

TEST_F(Rotating, WritesTransparentCornersOfAJpegAsThatFormatDoes)
{
    ASSERT_EQ(rotate(write(cornersPhoto(100, 100)), turn(45), u"public.jpeg"_s), ResultWord::Ok);

    EXPECT_EQ(test::storedPixels(folder.path(u"out.jpg"_s)).pixelColor(2, 2), QColor(Qt::white));
}

TEST_F(Rotating, FailsForWhatItCannotReadAndSaysWhy)
{
    const test::LogLines log;

    EXPECT_EQ(rotate(folder.path(u"gone.png"_s), turn(90), u"public.png"_s), ResultWord::Failed);
    EXPECT_TRUE(log.lines().contains(u"Image source is NULL."_s));
    EXPECT_EQ(
        rotate(folder.write(u"text.png"_s, "text"), onCanvas(0, 9), u"public.png"_s),
        ResultWord::Failed
    );
    EXPECT_TRUE(log.lines().contains(u"Image not created from image source."_s));
}

TEST_F(Rotating, PreviewsWhatItWrites)
{
    const QString path = write(cornersPhoto(60, 40));

    for (const RotateSettings& settings : {turn(20), onCanvas(20, 7), turn(270)}) {
        const auto photo
            = test::openedPhoto(path).image({.access = platform::codecs::SourceAccess::Random});
        const auto preview = DVImageHandling::hRotatePicturesPreview(*photo, settings);
        ASSERT_TRUE(preview);
        EXPECT_EQ(test::largestDifference(preview->toQImage(), rotated(path, settings)), 0);
    }
}
