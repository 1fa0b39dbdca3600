// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/drawing/canvas.h>
#include <platform/foundation/literals.h>

#include <support/color_profiles.h>
#include <support/photo_builder.h>
#include <support/pixel_probe.h>
#include <support/temporary_folder.h>

#include <gmock/gmock.h>

namespace brenvaldo {
namespace {

using namespace platform::graphics;
using namespace platform::drawing;
using namespace test;

Image layer(const QColor& color)
{
    QImage painted(47, 33, QImage::Format_ARGB32);
    painted.fill(color);
    return Image::fromQImage(painted);
}

class CanvasOver : public testing::Test
{
protected:
    [[nodiscard]] Image base(const PhotoBuilder& photo) const
    {
        return *openedPhoto(photo.write(m_folder.path(u"photo"_s))).image();
    }

private:
    TemporaryFolder m_folder;
};

TEST_F(CanvasOver, MixesByTheAlphaOfTheOverlay)
{
    const Image photo = base(PhotoBuilder().solid({100, 100, 100}).format(PhotoFormat::Png));

    const QColor mixed = over(photo, layer(QColor(200, 0, 100, 51))).toQImage().pixelColor(9, 9);

    EXPECT_EQ(mixed, QColor(120, 80, 100));
}

TEST_F(CanvasOver, LeavesThePhotoBelowATransparentOverlay)
{
    const PhotoBuilder photo = PhotoBuilder().depth(16).format(PhotoFormat::Png);
    const Image composed = over(base(photo), layer(QColor(0, 0, 0, 0)));

    EXPECT_EQ(composed.bitsPerComponent(), 16);
    EXPECT_EQ(largestDifference(composed.toQImage(), base(photo).toQImage()), 0);
}

TEST_F(CanvasOver, FillsATransparentPhoto)
{
    const Image photo = base(
        PhotoBuilder().model(PhotoModel::RgbAlpha).solid({0, 255, 0, 0}).format(PhotoFormat::Png)
    );

    const QColor mixed = over(photo, layer(QColor(255, 0, 0, 128))).toQImage().pixelColor(9, 9);

    EXPECT_EQ(mixed.alpha(), 128);
    EXPECT_EQ(mixed.red(), 255);
    EXPECT_EQ(mixed.green(), 0);
}

TEST_F(CanvasOver, BringsItsColorsToTheProfileOfThePhoto)
{
    const Image photo = base(PhotoBuilder().iccProfile(wideProfile()).format(PhotoFormat::Png));

    const Image composed = over(photo, layer(QColor(30, 180, 60)));

    EXPECT_EQ(composed.iccProfile(), wideProfile());
    const QColor shown = composed.toQImage().pixelColor(9, 9);
    EXPECT_NEAR(shown.red(), 30, 3);
    EXPECT_NEAR(shown.green(), 180, 3);
    EXPECT_NEAR(shown.blue(), 60, 3);
}

TEST_F(CanvasOver, DrawsGrayOnGray)
{
    const Image photo
        = base(PhotoBuilder().model(PhotoModel::Gray).solid({50}).format(PhotoFormat::Png));

    const Image composed = over(photo, layer(QColor(180, 180, 180)));

    EXPECT_EQ(composed.colorModel(), ColorModel::Gray);
    EXPECT_NEAR(composed.toQImage().pixelColor(9, 9).red(), 180, 2);
}

TEST_F(CanvasOver, DrawsInkOnInk)
{
    const Image photo = base(PhotoBuilder().model(PhotoModel::Cmyk).format(PhotoFormat::Tiff));

    const Image composed = over(photo, layer(QColor(Qt::white)));

    EXPECT_EQ(composed.colorModel(), ColorModel::Cmyk);
    EXPECT_GE(composed.toQImage().pixelColor(9, 9).lightness(), 250);
}

} // namespace
} // namespace brenvaldo
