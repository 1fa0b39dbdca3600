// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/graphics/free_turn.h>

#include <support/geometry_printing.h>
#include <support/pixel_probe.h>
#include <support/temporary_folder.h>

#include <gmock/gmock.h>

namespace brenvaldo {
namespace {

using namespace platform::graphics;
using namespace test;

constexpr int roundingError = 1;

Image storedImage(const TemporaryFolder& folder, const PhotoBuilder& photo, const char* name)
{
    const auto image = openedPhoto(photo.write(folder.path(QString::fromLatin1(name)))).image();
    if (!image)
        qFatal("a photo of a test can't be decoded");
    return *image;
}

PhotoBuilder png() { return PhotoBuilder().format(PhotoFormat::Png); }

/// Turned in the middle of a canvas of 100 x 100.
FreeTurn turnBy(double degrees, FreeCorners corners)
{
    return {
        .degrees = degrees, .canvas = {100, 100}, .centre = {.x = 50, .y = 50}, .corners = corners};
}

TEST(FreeTurn, MovesPixelsAsAQuarterTurnDoes)
{
    const TemporaryFolder folder;
    const Image photo = storedImage(folder, png().size(48, 32).gradient(), "photo.png");
    const FreeTurn turn
        = {.degrees = 90,
           .canvas = {32, 48},
           .centre = {.x = 16, .y = 24},
           .corners = FreeCorners::Blank};

    const QImage turned = freelyTurned(photo, turn).toQImage();

    const Image again = storedImage(folder, png().size(48, 32).gradient(), "again.png");
    const QImage expected = again.turned(Image::QuarterTurn::CounterClockwise).toQImage();
    EXPECT_LE(largestDifference(turned, expected), roundingError);
}

TEST(FreeTurn, TurnsCounterClockwise)
{
    const TemporaryFolder folder;
    const auto redAtTheRight = [](int x, int /*y*/) {
        return x >= 40 ? Samples{255, 0, 0} : Samples{0, 0, 255};
    };
    const Image photo = storedImage(folder, png().size(60, 60).pixels(redAtTheRight), "photo.png");

    const QImage turned = freelyTurned(photo, turnBy(45, FreeCorners::Blank)).toQImage();

    EXPECT_EQ(turned.pixelColor(64, 36), QColor(255, 0, 0));
    EXPECT_EQ(turned.pixelColor(64, 64), QColor(0, 0, 255));
    EXPECT_EQ(turned.pixelColor(36, 64), QColor(0, 0, 255));
}

TEST(FreeTurn, LeavesTransparentCornersToAnOpaquePhoto)
{
    const TemporaryFolder folder;
    const Image photo = storedImage(folder, png().size(60, 60).solid({200, 100, 50}), "photo.png");

    const Image turned = freelyTurned(photo, turnBy(30, FreeCorners::Transparent));
    const QImage pixels = turned.toQImage();

    EXPECT_TRUE(turned.hasAlpha());
    EXPECT_EQ(turned.pixelSize(), (PixelSize{100, 100}));
    EXPECT_EQ(pixels.pixelColor(1, 1).alpha(), 0);
    EXPECT_EQ(pixels.pixelColor(50, 50), QColor(200, 100, 50));
}

TEST(FreeTurn, LeavesBlackCornersWhereTheyAreBlank)
{
    const TemporaryFolder folder;
    const Image photo = storedImage(folder, png().size(60, 60).solid({200, 100, 50}), "photo.png");

    const Image turned = freelyTurned(photo, turnBy(30, FreeCorners::Blank));

    EXPECT_FALSE(turned.hasAlpha());
    EXPECT_EQ(turned.toQImage().pixelColor(1, 1), QColor(0, 0, 0));
}

TEST(FreeTurn, LeavesThePaperWhiteInCmyk)
{
    const TemporaryFolder folder;
    const PhotoBuilder cmyk
        = PhotoBuilder().model(PhotoModel::Cmyk).size(60, 60).solid({0, 255, 255, 0});
    const Image photo = storedImage(folder, cmyk, "photo.jpg");

    const QImage turned = freelyTurned(photo, turnBy(30, FreeCorners::Blank)).toQImage();

    const QColor corner = turned.pixelColor(1, 1);
    EXPECT_GE(std::min({corner.red(), corner.green(), corner.blue()}), 250);
}

TEST(FreeTurn, KeepsTheTransparencyOfAPhoto)
{
    const TemporaryFolder folder;
    const PhotoBuilder glass
        = png().model(PhotoModel::RgbAlpha).size(60, 60).solid({200, 100, 50, 128});
    const Image photo = storedImage(folder, glass, "photo.png");

    const QImage turned = freelyTurned(photo, turnBy(30, FreeCorners::Blank))
                              .toQImage()
                              .convertToFormat(QImage::Format_ARGB32);

    EXPECT_EQ(turned.pixelColor(1, 1).alpha(), 0);
    EXPECT_EQ(turned.pixelColor(50, 50).alpha(), 128);
    EXPECT_NEAR(turned.pixelColor(50, 50).red(), 200, 2);
}

TEST(FreeTurn, KeepsDepthAndColorModel)
{
    const TemporaryFolder folder;
    const PhotoBuilder deep = png().model(PhotoModel::Gray).depth(16).size(60, 60).solid({77});
    const Image photo = storedImage(folder, deep, "photo.png");

    const Image turned = freelyTurned(photo, turnBy(30, FreeCorners::Transparent));

    EXPECT_EQ(turned.bitsPerComponent(), 16);
    EXPECT_EQ(turned.colorModel(), ColorModel::Gray);
    EXPECT_EQ(turned.toQImage().pixelColor(50, 50), QColor(77, 77, 77));
}

} // namespace
} // namespace brenvaldo
