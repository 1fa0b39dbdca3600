// SPDX-License-Identifier: GPL-3.0-or-later
#include "marked_text.h"

#include <platform/codecs/image_destination.h>
#include <platform/foundation/literals.h>

#include <support/case_name.h>
#include <support/color_profiles.h>
#include <support/photo_builder.h>
#include <support/pixel_probe.h>
#include <support/temporary_folder.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

#include <QFile>

using namespace brenvaldo;
using namespace brenvaldo::test;
using namespace brenvaldo::watermark;

namespace {

constexpr int topLeft = 0;
constexpr int centre = 4;
constexpr int bottomLeft = 6;

struct FilledKind
{
    const char* name;
    PhotoModel model;
    int depth;
    bool isWide = false;

    friend void PrintTo(const FilledKind& row, std::ostream* out) { *out << row.name; }
};

class TextFilledWithThePhoto : public testing::TestWithParam<FilledKind>
{
protected:
    /// A photo with levels of its full depth: enlarged from a few pixels.
    [[nodiscard]] platform::graphics::Image photo() const
    {
        const FilledKind& row = GetParam();
        PhotoBuilder builder;
        builder.size(16, 12).model(row.model).depth(row.depth).format(PhotoFormat::Tiff);
        builder.pixels([](int x, int y) {
            return Samples{x * 16, 255 - y * 20, (x + y) * 9, 100 + x, 90};
        });
        if (row.isWide)
            builder.iccProfile(wideProfile());
        const QString path = builder.write(folder.path(u"photo.tif"_s));
        return openedPhoto(path).image()->scaledTo({160, 120}).copiedToMemory().value();
    }

    /// All samples, whatever their depth and colour model.
    [[nodiscard]] QByteArray samplesOf(const platform::graphics::Image& image) const
    {
        const QString path = folder.path(u"samples.tiff"_s);
        if (!platform::codecs::encode(image, platform::codecs::FileFormat::Tiff, {}, path))
            return {};
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    TemporaryFolder folder;
};

platform::graphics::Image
marked(const TextWatermarkSettings& settings, const platform::graphics::Image& photo)
{
    return platform::drawing::stamped(photo, textMark(settings, settings.text, blockFont(), photo));
}

TextWatermarkSettings blockOfThePhoto(int fontSize = 40, int anchor = bottomLeft)
{
    TextWatermarkSettings settings = whiteBlock();
    settings.effect = TextEffect::Photo;
    settings.fontSize = fontSize;
    settings.placement.anchor = anchor;
    return settings;
}

/// Red tells the column, green the row.
platform::graphics::Image coordinates()
{
    QImage image(161, 121, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, qRgb(x, y, 200));
    }
    return platform::graphics::Image::fromQImage(image);
}

} // namespace

TEST_P(TextFilledWithThePhoto, IsThePhotoWhereItStandsOnTheCornerThatFillsIt)
{
    const platform::graphics::Image plain = photo();

    EXPECT_EQ(samplesOf(marked(blockOfThePhoto(), plain)), samplesOf(plain));
    EXPECT_NE(samplesOf(marked(blockOfThePhoto(40, centre), plain)), samplesOf(plain));
}

INSTANTIATE_TEST_SUITE_P(
    Table,
    TextFilledWithThePhoto,
    testing::Values(
        FilledKind{"Rgb8", PhotoModel::Rgb, 8},
        FilledKind{"WideRgb8", PhotoModel::Rgb, 8, true},
        FilledKind{"WideRgb16", PhotoModel::Rgb, 16, true},
        FilledKind{"Gray16", PhotoModel::Gray, 16},
        FilledKind{"Cmyk8", PhotoModel::Cmyk, 8}
    ),
    CaseName()
);

TEST(TextFill, OfAWideGamutPhotoIsAsSaturatedAsThePhoto)
{
    const TemporaryFolder folder;
    const QString path = PhotoBuilder()
                             .size(120, 80)
                             .solid({0, 255, 0})
                             .iccProfile(wideProfile())
                             .format(PhotoFormat::Png)
                             .write(folder.path(u"a.png"_s));
    const platform::graphics::Image photo = openedPhoto(path).image()->copiedToMemory().value();
    const QString target = folder.path(u"b.png"_s);

    ASSERT_TRUE(platform::codecs::encode(
        marked(blockOfThePhoto(40, centre), photo), platform::codecs::FileFormat::Png, {}, target
    ));

    EXPECT_EQ(QImage(target).pixel(60, 40), qRgb(0, 255, 0));
}

TEST(TextFill, InBlackAndWhiteHasTheLevelsOfADeepPhoto)
{
    const TemporaryFolder folder;
    const QString path = PhotoBuilder()
                             .size(120, 80)
                             .depth(16)
                             .solid({200, 100, 50})
                             .format(PhotoFormat::Png)
                             .write(folder.path(u"a.png"_s));
    const platform::graphics::Image photo = openedPhoto(path).image()->copiedToMemory().value();
    TextWatermarkSettings settings = blockOfThePhoto(40, centre);
    settings.effect = TextEffect::NoirPhoto;
    const QString target = folder.path(u"b.png"_s);

    ASSERT_TRUE(platform::codecs::encode(
        marked(settings, photo), platform::codecs::FileFormat::Png, {}, target
    ));

    const QRgba64 middle = QImage(target).pixelColor(60, 40).rgba64();
    EXPECT_NEAR(middle.red(), 27882, 1);
    EXPECT_EQ(middle.green(), middle.red());
    EXPECT_EQ(middle.blue(), middle.red());
}

TEST(TextFill, TallerThanThePhotoStartsAtTheBottomLeft)
{
    const platform::graphics::Image photo = coordinates();

    const QImage found = marked(blockOfThePhoto(400), photo).toQImage();

    EXPECT_EQ(largestDifference(found, photo.toQImage()), 0);
}

TEST(TextFill, BeginsAnewBehindThePhotosEdges)
{
    const platform::graphics::Image photo = coordinates();
    TextWatermarkSettings settings = blockOfThePhoto(400);
    settings.placement.xOffset = -50;
    settings.placement.yOffset = -30;

    const QImage found = marked(settings, photo).toQImage();

    EXPECT_EQ(found.pixel(20, 100), qRgb(70, 70, 200));
    EXPECT_EQ(found.pixel(120, 20), qRgb(9, 111, 200));
}

TEST(TextFill, TurnsWithItsLayer)
{
    const platform::graphics::Image photo = coordinates();
    TextWatermarkSettings settings = blockOfThePhoto(40, topLeft);
    const QRect upright = blockOnItsLayer(settings);
    const platform::graphics::PixelSize layer = overlayOf(settings, photo).size();
    settings.placement.angle = 180;

    const QImage found = marked(settings, photo).toQImage();

    const QPoint inBlock = upright.topLeft() + QPoint(4, 6);
    const QPoint turned(layer.width - 1 - inBlock.x(), layer.height - 1 - inBlock.y());
    const QRgb pixel = found.pixel(turned);
    EXPECT_NEAR(qRed(pixel), inBlock.x(), 1);
    EXPECT_NEAR(qGreen(pixel), photo.height() - layer.height + inBlock.y(), 1);
}

TEST(TextFill, IsTheSameInEachTile)
{
    const platform::graphics::Image photo = coordinates();
    TextWatermarkSettings settings = blockOfThePhoto(40);
    settings.isTiled = true;
    settings.placement.xOffset = 8;
    settings.placement.yOffset = 6;
    const platform::graphics::PixelSize layer = overlayOf(settings, photo).size();
    const QImage found = marked(settings, photo).toQImage();

    const TileSpan across = tileSpan(photo.width(), layer.width);
    const TileSpan along = tileSpan(photo.height(), layer.height);
    const QPoint inBlock = blockOnItsLayer(settings).center();
    for (const int column : {0, 1, 2}) {
        // The second row of cells from below, each with half of the gap around the layer.
        const QPoint corner(
            column * (layer.width + 8) + 4 - across.overhang,
            photo.height() + along.overhang - (layer.height + 6) - 3 - layer.height
        );
        const QRgb pixel = found.pixel(corner + inBlock);
        EXPECT_NEAR(qRed(pixel), inBlock.x(), 1) << column;
        EXPECT_NEAR(qGreen(pixel), photo.height() - layer.height + inBlock.y(), 1) << column;
    }
}

TEST(TextFill, OfATileLargerThanThePhotoIsThatOfSmallOnes)
{
    const platform::graphics::Image photo = coordinates();
    TextWatermarkSettings settings = blockOfThePhoto(5000);
    settings.isTiled = true;
    const platform::graphics::PixelSize layer = overlayOf(settings, photo).size();
    ASSERT_GT(layer.width * layer.height, 16'000'000);

    const QImage found = marked(settings, photo).toQImage();

    // From the layer's bottom left corner, which lies outside.
    const int x = 80 + tileSpan(photo.width(), layer.width).overhang;
    const int y = 60 + tileSpan(photo.height(), layer.height).overhang;
    EXPECT_EQ(found.pixel(80, 120 - 60), qRgb(x % 161, 120 - y % 121, 200));
}

TEST(TextFill, BeginsAnewInEachOfTheLargeTiles)
{
    QImage ground(6100, 12, QImage::Format_RGB32);
    for (int y = 0; y < ground.height(); ++y) {
        for (int x = 0; x < ground.width(); ++x)
            ground.setPixel(x, y, qRgb(x % 256, y, x / 256));
    }
    const platform::graphics::Image photo = platform::graphics::Image::fromQImage(ground);
    TextWatermarkSettings settings = blockOfThePhoto(5000);
    settings.isTiled = true;
    settings.placement.xOffset = 40;
    const platform::graphics::PixelSize layer = overlayOf(settings, photo).size();
    ASSERT_GT(layer.width * layer.height, 16'000'000);
    ASSERT_LT(layer.width, 4000);

    const QImage found = marked(settings, photo).toQImage();

    const int inCell = (5000 + tileSpan(photo.width(), layer.width).overhang) % (layer.width + 40);
    const int x = inCell - 20;
    const int y = (5 + tileSpan(photo.height(), layer.height).overhang) % layer.height;
    EXPECT_EQ(found.pixel(5000, 11 - 5), qRgb(x % 256, 11 - y % 12, x / 256));
}

TEST(TextFill, OfADamagedPhotoLeavesNoMark)
{
    const TemporaryFolder folder;
    const QByteArray whole
        = PhotoBuilder().size(400, 300).gradient().format(PhotoFormat::Jpeg).bytes();
    const QString path = folder.write(u"a.jpg"_s, whole.left(whole.size() / 2));
    const auto photo = openedPhoto(path).uprightImage(
        {.access = platform::codecs::ImageSource::Access::Random, .atLeast = {}}
    );
    ASSERT_TRUE(photo.has_value());
    const TextWatermarkSettings settings = blockOfThePhoto();

    EXPECT_TRUE(textMark(settings, settings.text, blockFont(), *photo).layer.isNull());
}

TEST(TextFill, HasTheStrengthOfTheOpacityOnce)
{
    QImage ground(161, 121, QImage::Format_RGB32);
    ground.fill(qRgb(10, 20, 30));
    for (int y = 60; y < 121; ++y) {
        for (int x = 0; x < 80; ++x)
            ground.setPixel(x, y, qRgb(210, 120, 230)); // what fills the glyphs
    }
    TextWatermarkSettings settings = blockOfThePhoto(40, 2);
    settings.opacity = 0.5;

    const QImage found = marked(settings, platform::graphics::Image::fromQImage(ground)).toQImage();

    const QRgb pixel = found.pixel(changedBox(found.copy(81, 0, 80, 60)).center() + QPoint(81, 0));
    EXPECT_NEAR(qRed(pixel), 110, 1);
    EXPECT_NEAR(qGreen(pixel), 70, 1);
    EXPECT_NEAR(qBlue(pixel), 130, 1);
}

TEST(TextFill, IsAsTransparentAsThePhoto)
{
    QImage ground(161, 121, QImage::Format_ARGB32);
    ground.fill(qRgba(10, 20, 30, 255));
    for (int y = 60; y < 121; ++y) {
        for (int x = 0; x < 80; ++x)
            ground.setPixel(x, y, qRgba(200, 100, 50, 102));
    }
    const platform::graphics::Image photo = platform::graphics::Image::fromQImage(ground);

    const QImage found = marked(blockOfThePhoto(40, 2), photo).toQImage();

    const QRgb pixel = found.pixel(changedBox(found.copy(81, 0, 80, 60)).center() + QPoint(81, 0));
    EXPECT_NEAR(qRed(pixel), 10 + 190 * 0.4, 1);
    EXPECT_NEAR(qGreen(pixel), 20 + 80 * 0.4, 1);
    EXPECT_NEAR(qBlue(pixel), 30 + 20 * 0.4, 1);
}

TEST(TextFill, TakesNoColorFromWhatCannotBeSeenOfThePhoto)
{
    QImage ground(161, 121, QImage::Format_ARGB32);
    for (int y = 0; y < ground.height(); ++y) {
        for (int x = 0; x < ground.width(); ++x)
            ground.setPixel(x, y, x % 2 == 0 ? qRgba(255, 0, 0, 255) : qRgba(0, 255, 0, 0));
    }
    TextWatermarkSettings settings = blockOfThePhoto(60, centre);
    settings.placement.angle = 30; // between the photo's pixels

    const QImage found = marked(settings, platform::graphics::Image::fromQImage(ground)).toQImage();

    int green = 0;
    for (int y = 0; y < found.height(); ++y) {
        for (int x = 0; x < found.width(); ++x)
            green = std::max(green, qGreen(found.pixel(x, y)));
    }
    EXPECT_LE(green, 1);
}

TEST(TextFill, StandsAboveItsOwnShadow)
{
    const platform::graphics::Image photo = coordinates();
    TextWatermarkSettings settings = blockOfThePhoto(40);
    settings.text = block() + QLatin1Char(' ');
    settings.shadow = platform::drawing::Shadow{
        .color = {.red = 1}, .xOffset = 4, .yOffset = 0, .blurRadius = 0};

    const QImage found = marked(settings, photo).toQImage();

    int red = 0;
    int others = 0;
    for (int y = 0; y < found.height(); ++y) {
        for (int x = 0; x < found.width(); ++x) {
            const QRgb pixel = found.pixel(x, y);
            if (pixel == qRgb(255, 0, 0))
                ++red;
            else
                others += pixel == qRgb(x, y, 200) ? 0 : 1;
        }
    }
    EXPECT_GT(red, 60); // a stripe beside the block
    EXPECT_LT(others, red); // its soft edges
}
