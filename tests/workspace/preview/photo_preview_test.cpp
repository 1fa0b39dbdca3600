// SPDX-License-Identifier: GPL-3.0-or-later
#include <workspace/preview/photo_preview.h>

#include <gtest/gtest.h>

using namespace brenvaldo;

namespace {

platform::graphics::Image filled(int width, int height, const QColor& color)
{
    QImage image(width, height, QImage::Format_RGBA8888);
    image.fill(color);
    return platform::graphics::Image::fromQImage(image);
}

platform::graphics::Image opaque(int width, int height, const QColor& color)
{
    QImage image(width, height, QImage::Format_RGB888);
    image.fill(color);
    return platform::graphics::Image::fromQImage(image);
}

QColor pixelOf(const std::optional<platform::graphics::Image>& image)
{
    return image->toQImage().pixelColor(2, 1);
}

} // namespace

TEST(ComposedPreview, IsTheOneThatThereIs)
{
    const platform::graphics::Image photo = opaque(7, 5, Qt::red);

    EXPECT_FALSE(workspace::composed(std::nullopt, std::nullopt).has_value());
    EXPECT_EQ(pixelOf(workspace::composed(photo, std::nullopt)), QColor(Qt::red));
    EXPECT_EQ(pixelOf(workspace::composed(std::nullopt, photo)), QColor(Qt::red));
}

TEST(ComposedPreview, LetsThePhotoShowThroughTheOverlay)
{
    const auto composed
        = workspace::composed(opaque(7, 5, QColor(200, 0, 0)), filled(7, 5, QColor(0, 0, 100, 51)));

    EXPECT_EQ(composed->pixelSize(), (platform::graphics::PixelSize{7, 5}));
    EXPECT_EQ(pixelOf(composed), QColor(160, 0, 20));
}

TEST(ComposedPreview, ShowsAColouredOverlayOnAGreyPhoto)
{
    QImage gray(7, 5, QImage::Format_Grayscale8);
    gray.fill(100);
    const auto composed = workspace::composed(
        platform::graphics::Image::fromQImage(gray), filled(7, 5, QColor(255, 0, 0, 255))
    );

    EXPECT_EQ(pixelOf(composed), QColor(Qt::red));
}

TEST(ComposedPreview, DrawsAnOverlayOfAnotherSizeAtTheSizeOfThePhoto)
{
    const auto composed
        = workspace::composed(opaque(7, 5, Qt::red), filled(3, 2, QColor(0, 0, 255, 255)));

    EXPECT_EQ(composed->pixelSize(), (platform::graphics::PixelSize{7, 5}));
    EXPECT_EQ(pixelOf(composed), QColor(Qt::blue));
}

TEST(ComposedPreview, CoversThePhotoWithAnOpaqueOverlay)
{
    const auto composed = workspace::composed(opaque(7, 5, Qt::red), opaque(14, 10, Qt::green));

    EXPECT_EQ(composed->pixelSize(), (platform::graphics::PixelSize{7, 5}));
    EXPECT_EQ(pixelOf(composed), QColor(Qt::green));
}

TEST(ComposedPreview, KeepsATransparentPhotoTransparent)
{
    const auto composed = workspace::composed(
        filled(7, 5, QColor(255, 0, 0, 102)), filled(7, 5, QColor(0, 0, 0, 0))
    );

    EXPECT_EQ(pixelOf(composed).alpha(), 102);
}
