// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/drawing/clear_layer.h>
#include <platform/foundation/literals.h>

#include <support/color_profiles.h>
#include <support/geometry_printing.h>
#include <support/photo_builder.h>
#include <support/pixel_probe.h>
#include <support/temporary_folder.h>

#include <gtest/gtest.h>

namespace brenvaldo {
namespace {

using namespace platform::drawing;
using platform::graphics::Image;
using platform::graphics::PixelSize;
using test::PhotoBuilder;
using test::PhotoFormat;
using test::PhotoModel;

Image photoOf(PhotoBuilder builder)
{
    const test::TemporaryFolder folder;
    return test::openedPhoto(builder.format(PhotoFormat::Tiff).write(folder.path(u"photo.tif"_s)))
        .image()
        ->copiedToMemory()
        .value();
}

/// A picture whose pixels tell their place: red is x, green is y.
Image places(const QSize& size)
{
    QImage image(size, QImage::Format_RGBA8888);
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x)
            image.setPixelColor(x, y, QColor(x, y, 0));
    }
    return Image::fromQImage(image);
}

/// Nothing where the picture is transparent.
std::optional<QPoint> placeAt(const Image& image, int x, int y)
{
    const QRgb pixel = image.toQImage().pixel(x, y);
    return qAlpha(pixel) == 0 ? std::nullopt : std::optional(QPoint(qRed(pixel), qGreen(pixel)));
}

} // namespace

TEST(ClearLayer, IsEightBitsOfRgbWithAlphaWhateverThePictureWas)
{
    for (const PhotoModel model :
         {PhotoModel::Gray,
          PhotoModel::GrayAlpha,
          PhotoModel::Rgb,
          PhotoModel::RgbAlpha,
          PhotoModel::Cmyk}) {
        for (const int depth : {8, 16}) {
            const Image layer = clearLayer(
                photoOf(PhotoBuilder().model(model).depth(depth).solid({90, 90, 90, 255, 255}))
            );

            EXPECT_EQ(layer.colorModel(), platform::graphics::ColorModel::Rgb);
            EXPECT_EQ(layer.bitsPerComponent(), 8);
            EXPECT_TRUE(layer.hasAlpha());
            EXPECT_TRUE(layer.copiedToMemory());
        }
    }
}

TEST(ClearLayer, KeepsColorsAndTheirOpacity)
{
    const Image layer = clearLayer(
        photoOf(PhotoBuilder().model(PhotoModel::RgbAlpha).depth(16).solid({200, 100, 50, 128}))
    );

    const QImage shown = layer.toQImage().convertToFormat(QImage::Format_RGBA8888);
    EXPECT_NEAR(qRed(shown.pixel(3, 3)), 200, 1);
    EXPECT_NEAR(qGreen(shown.pixel(3, 3)), 100, 1);
    EXPECT_NEAR(qBlue(shown.pixel(3, 3)), 50, 1);
    EXPECT_EQ(qAlpha(shown.pixel(3, 3)), 128);
}

TEST(ClearLayer, HasTheColorsOfSrgb)
{
    const Image wide
        = photoOf(PhotoBuilder().solid({100, 150, 100}).iccProfile(test::profileOf(test::adobeRgb))
        );

    const QRgb shown = clearLayer(wide).toQImage().pixel(3, 3);

    EXPECT_EQ(shown, wide.toQImage().pixel(3, 3));
    EXPECT_LT(qRed(shown), 80);
}

TEST(ClearCanvas, HoldsTheLayerAtItsPlace)
{
    const Image canvas = onClearCanvas(places({4, 3}), {10, 8}, {5, 2});

    EXPECT_EQ(canvas.pixelSize(), (PixelSize{10, 8}));
    EXPECT_EQ(placeAt(canvas, 5, 2), QPoint(0, 0));
    EXPECT_EQ(placeAt(canvas, 8, 4), QPoint(3, 2));
    EXPECT_EQ(placeAt(canvas, 4, 2), std::nullopt);
    EXPECT_EQ(placeAt(canvas, 9, 4), std::nullopt);
}

TEST(ClearCanvas, CutsOffWhatStandsOut)
{
    const Image canvas = onClearCanvas(places({40, 30}), {10, 8}, {-7, -9});

    EXPECT_EQ(placeAt(canvas, 0, 0), QPoint(7, 9));
    EXPECT_EQ(placeAt(canvas, 9, 7), QPoint(16, 16));
}

TEST(ClearCanvas, IsClearBesideALayerThatIsFarAway)
{
    const Image canvas = onClearCanvas(places({4, 3}), {10, 8}, {8'000'000, 0});

    EXPECT_EQ(placeAt(canvas, 0, 0), std::nullopt);
    EXPECT_EQ(canvas.pixelSize(), (PixelSize{10, 8}));
}

TEST(RepeatedCell, StandsAtItsCornerAndAllAround)
{
    const Image canvas = repeated(places({4, 3}), {23, 17}, {5, 2});

    EXPECT_EQ(canvas.pixelSize(), (PixelSize{23, 17}));
    EXPECT_EQ(placeAt(canvas, 5, 2), QPoint(0, 0));
    EXPECT_EQ(placeAt(canvas, 0, 0), QPoint(3, 1));
    EXPECT_EQ(placeAt(canvas, 22, 16), QPoint(1, 2));
}

TEST(RepeatedCell, MayBeginOutside)
{
    const Image canvas = repeated(places({100, 90}), {150, 130}, {-30, -20});

    EXPECT_EQ(placeAt(canvas, 0, 0), QPoint(30, 20));
    EXPECT_EQ(placeAt(canvas, 70, 70), QPoint(0, 0));
    EXPECT_EQ(placeAt(canvas, 149, 129), QPoint(79, 59));
}

TEST(RepeatedCell, MayBeLargerThanTheCanvas)
{
    const Image canvas = repeated(places({250, 240}), {20, 10}, {0, -30});

    EXPECT_EQ(placeAt(canvas, 0, 0), QPoint(0, 30));
    EXPECT_EQ(placeAt(canvas, 19, 9), QPoint(19, 39));
}

TEST(InkedLayer, HasTheShapeOfTheLayerAndOneColor)
{
    QImage picture(2, 1, QImage::Format_RGBA8888);
    picture.setPixelColor(0, 0, QColor(10, 20, 30, 255));
    picture.setPixelColor(1, 0, QColor(200, 20, 30, 100));

    const QImage ink
        = inked(Image::fromQImage(picture), {.red = 1, .green = 0.2, .blue = 0.4, .alpha = 0.5})
              .toQImage()
              .convertToFormat(QImage::Format_RGBA8888);

    EXPECT_EQ(qAlpha(ink.pixel(0, 0)), 128);
    EXPECT_EQ(qAlpha(ink.pixel(1, 0)), 50);
    EXPECT_EQ(qRed(ink.pixel(0, 0)), 255);
    EXPECT_NEAR(qGreen(ink.pixel(0, 0)), 51, 1);
    EXPECT_NEAR(qBlue(ink.pixel(0, 0)), 102, 1);
}

TEST(ShapeOfAPhoto, IsItsAlphaInBlack)
{
    for (const PhotoModel model : {PhotoModel::GrayAlpha, PhotoModel::RgbAlpha}) {
        const bool isGray = model == PhotoModel::GrayAlpha;
        const auto shape = shapeOf(
            photoOf(PhotoBuilder().model(model).depth(16).solid({200, isGray ? 77 : 20, 90, 77}))
        );

        ASSERT_TRUE(shape);
        EXPECT_EQ(shape->colorModel(), platform::graphics::ColorModel::Rgb);
        EXPECT_EQ(shape->toQImage().pixel(3, 3), qRgba(0, 0, 0, 77));
    }
}

TEST(ShapeOfAPhoto, IsNoneWithoutAlpha) { EXPECT_FALSE(shapeOf(photoOf(PhotoBuilder()))); }

} // namespace brenvaldo
