// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/drawing/laid_under.h>
#include <platform/foundation/literals.h>

#include <support/deep_pixels.h>
#include <support/photo_builder.h>
#include <support/pixel_probe.h>
#include <support/temporary_folder.h>

#include <gtest/gtest.h>

namespace brenvaldo {
namespace {

using platform::graphics::Image;
using test::PhotoBuilder;
using test::PhotoModel;

Image photoOf(PhotoModel model, int depth, const test::Samples& samples)
{
    const test::TemporaryFolder folder;
    const QString path = PhotoBuilder()
                             .model(model)
                             .depth(depth)
                             .solid(samples)
                             .format(test::PhotoFormat::Png)
                             .write(folder.path(u"photo.png"_s));
    return test::openedPhoto(path).image()->copiedToMemory().value();
}

Image layerOf(const QColor& color)
{
    QImage painted(47, 33, QImage::Format_RGBA8888);
    painted.fill(color);
    return Image::fromQImage(painted);
}

QRgb straightPixel(const Image& image)
{
    return test::deepPixels(image).convertToFormat(QImage::Format_RGBA8888).pixel(20, 20);
}

} // namespace

TEST(LaidUnder, ShowsThroughWhatIsNotOpaque)
{
    for (const int depth : {8, 16}) {
        const Image photo = photoOf(PhotoModel::RgbAlpha, depth, {200, 100, 50, 128});

        const Image both
            = platform::drawing::withLayerBelow(photo, layerOf(QColor(0, 0, 100, 255)));

        EXPECT_EQ(both.bitsPerComponent(), depth);
        const QRgb pixel = straightPixel(both);
        EXPECT_EQ(qAlpha(pixel), 255);
        EXPECT_NEAR(qRed(pixel), 100.4, 1);
        EXPECT_NEAR(qGreen(pixel), 50.2, 1);
        EXPECT_NEAR(qBlue(pixel), 74.9, 1);
    }
}

TEST(LaidUnder, AddsToTheOpacity)
{
    const Image photo = photoOf(PhotoModel::RgbAlpha, 8, {200, 100, 50, 128});

    const QRgb pixel
        = straightPixel(platform::drawing::withLayerBelow(photo, layerOf(QColor(0, 0, 0, 128))));

    EXPECT_NEAR(qAlpha(pixel), 255 * 0.752, 1);
    EXPECT_NEAR(qRed(pixel), 200 * 0.502 / 0.752, 1);
}

TEST(LaidUnder, LeavesAnOpaquePhotoAndNothingBelow)
{
    const Image opaque = photoOf(PhotoModel::RgbAlpha, 8, {200, 100, 50, 255});
    const Image clear = photoOf(PhotoModel::RgbAlpha, 8, {200, 100, 50, 0});

    EXPECT_EQ(
        straightPixel(platform::drawing::withLayerBelow(opaque, layerOf(Qt::blue))),
        qRgba(200, 100, 50, 255)
    );
    EXPECT_EQ(
        qAlpha(straightPixel(platform::drawing::withLayerBelow(clear, layerOf(QColor(0, 0, 0, 0))))
        ),
        0
    );
}

TEST(LaidUnder, IsGrayBelowAGrayPhoto)
{
    const Image photo = photoOf(PhotoModel::GrayAlpha, 16, {100, 0});

    const Image both = platform::drawing::withLayerBelow(photo, layerOf(Qt::white));

    EXPECT_EQ(both.colorModel(), platform::graphics::ColorModel::Gray);
    EXPECT_EQ(qRed(straightPixel(both)), 255);
    EXPECT_EQ(qAlpha(straightPixel(both)), 255);
}

} // namespace brenvaldo
