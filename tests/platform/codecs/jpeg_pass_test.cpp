// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/codecs/jpeg_pass.h>

#include <platform/foundation/literals.h>

#include <support/pixel_probe.h>
#include <support/temporary_folder.h>

#include <gtest/gtest.h>

#include <cmath>
#include <random>

using namespace brenvaldo;
using platform::codecs::throughJpeg;
using platform::graphics::Image;

namespace {

/// Noise, whose colours and edges a JPEG finds hardest to keep.
QImage noise(int width, int height)
{
    std::mt19937 random(7);
    QImage picture(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            picture.setPixel(x, y, 0xff000000 | (random() & 0xffffff));
    }
    return picture;
}

/// The picture out of a real file of the best quality.
QImage outOfAFile(const QImage& picture)
{
    const test::TemporaryFolder folder;
    const auto sampleAt = [&picture](int x, int y) {
        const QRgb pixel = picture.pixel(x, y);
        return test::Samples{qRed(pixel), qGreen(pixel), qBlue(pixel)};
    };
    return test::storedPixels(test::PhotoBuilder()
                                  .size(picture.width(), picture.height())
                                  .pixels(sampleAt)
                                  .quality(100)
                                  .write(folder.path(u"a.jpg"_s)));
}

QImage passed(const QImage& picture) { return throughJpeg(Image::fromQImage(picture)).toQImage(); }

/// Levels by which the greens of two pictures differ on average.
double meanDifference(const QImage& left, const QImage& right)
{
    int sum = 0;
    for (int y = 0; y < left.height(); ++y) {
        for (int x = 0; x < left.width(); ++x)
            sum += std::abs(qGreen(left.pixel(x, y)) - qGreen(right.pixel(x, y)));
    }
    return static_cast<double>(sum) / (left.width() * left.height());
}

} // namespace

// Any two programs that write and read JPEGs differ by fractions of a level, which add up in noise.
TEST(JpegPass, GivesWhatAFileOfTheBestQualityGives)
{
    for (const QSize size : {QSize(256, 256), QSize(530, 37), QSize(7, 3), QSize(1, 1)}) {
        const QImage picture = noise(size.width(), size.height());
        const QImage fromFile = outOfAFile(picture);
        EXPECT_LE(test::largestDifference(passed(picture), fromFile), 6) << size.width();
        EXPECT_LE(meanDifference(passed(picture), fromFile), 0.4) << size.width();
    }
}

TEST(JpegPass, LosesAsMuchAsAFileOfTheBestQuality)
{
    const QImage picture = noise(256, 256);
    const double ofAFile = meanDifference(outOfAFile(picture), picture);
    EXPECT_GT(ofAFile, 0.1);
    EXPECT_NEAR(meanDifference(passed(picture), picture), ofAFile, 0.1 * ofAFile);
}

TEST(JpegPass, GivesEachPartAsTheWholePictureHasIt)
{
    const Image whole = throughJpeg(Image::fromQImage(noise(600, 50)));
    const auto part = whole.croppedTo({.x = 251, .y = 13, .width = 300, .height = 11});
    ASSERT_TRUE(part);
    EXPECT_EQ(part->toQImage(), whole.toQImage().copy(251, 13, 300, 11));
}

TEST(JpegPass, LaysTransparentPartsOnWhite)
{
    QImage clear(9, 9, QImage::Format_ARGB32);
    clear.fill(Qt::transparent);
    const Image result = throughJpeg(Image::fromQImage(clear));
    EXPECT_FALSE(result.hasAlpha());
    EXPECT_EQ(result.toQImage().pixelColor(4, 4), QColor(Qt::white));
}

TEST(JpegPass, TakesGreyAndDeepPicturesAndInks)
{
    const test::TemporaryFolder folder;
    for (const auto model : {test::PhotoModel::Gray, test::PhotoModel::Cmyk}) {
        const QString path = test::PhotoBuilder()
                                 .format(test::PhotoFormat::Tiff)
                                 .model(model)
                                 .depth(16)
                                 .write(folder.path(u"a.tiff"_s));
        const Image result = throughJpeg(*test::openedPhoto(path).image());
        EXPECT_EQ(result.bitsPerComponent(), 8);
        EXPECT_LE(test::largestDifference(result.toQImage(), test::storedPixels(path)), 3);
    }
}
