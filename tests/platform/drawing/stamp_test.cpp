// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/codecs/image_destination.h>
#include <platform/drawing/stamp.h>
#include <platform/foundation/literals.h>

#include <support/color_profiles.h>
#include <support/geometry_printing.h>
#include <support/log_lines.h>
#include <support/pixel_probe.h>
#include <support/temporary_folder.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

#include <stdexcept>

using namespace brenvaldo;
using platform::drawing::Stamp;

namespace {

platform::graphics::Image photo()
{
    QImage picture(90, 60, QImage::Format_RGB32);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            picture.setPixel(x, y, qRgb(2 * x, 4 * y, x + y));
    }
    return platform::graphics::Image::fromQImage(picture);
}

/// A layer whose opacity runs from nothing at its left to all at its right.
QImage fadingLayer(int width, int height)
{
    QImage layer(width, height, QImage::Format_RGBA8888);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            layer.setPixel(x, y, qRgba(250, 10 * y, 3 * x, 255 * x / (width - 1)));
    }
    return layer;
}

Stamp once() { return {.layer = fadingLayer(31, 17), .topLeft = {20, 10}}; }

/// Makes a stamp and counts how often.
struct CountedStamp
{
    Stamp stamp;
    std::shared_ptr<int> made = std::make_shared<int>(0);

    Stamp operator()() const
    {
        ++*made;
        return stamp;
    }
};

} // namespace

TEST(StampToBeMade, IsMadeOnceAndNotBeforeThePictureIsDrawn)
{
    const CountedStamp make{.stamp = once()};

    const platform::graphics::Image marked = platform::drawing::stamped(photo(), make);
    EXPECT_EQ(*make.made, 0);

    const QImage first = marked.toQImage();
    const QImage second = marked.toQImage();
    EXPECT_EQ(*make.made, 1);
    EXPECT_EQ(test::largestDifference(first, second), 0);
}

TEST(StampToBeMade, MarksAsOneThatIsThere)
{
    const platform::graphics::Image plain = photo();

    const platform::graphics::Image marked
        = platform::drawing::stamped(plain, CountedStamp{.stamp = once()});

    EXPECT_EQ(
        test::largestDifference(
            marked.toQImage(), platform::drawing::stamped(plain, once()).toQImage()
        ),
        0
    );
    EXPECT_GT(test::largestDifference(marked.toQImage(), plain.toQImage()), 0);
}

TEST(StampToBeMade, TellsItsPart)
{
    const platform::graphics::Image plain = photo();
    const CountedStamp make{.stamp = once()};
    const platform::graphics::Image marked = platform::drawing::stamped(plain, make);

    const auto part = platform::drawing::stampedPart(marked, plain);

    EXPECT_EQ(part, (platform::graphics::PixelRect{.x = 20, .y = 10, .width = 31, .height = 17}));
    (void)marked.toQImage();
    EXPECT_EQ(*make.made, 1);
    EXPECT_FALSE(platform::drawing::stampedPart(plain, marked).has_value());
}

TEST(StampToBeMade, OfNothingLeavesThePhoto)
{
    const platform::graphics::Image plain = photo();

    const platform::graphics::Image marked = platform::drawing::stamped(plain, CountedStamp{});

    EXPECT_EQ(test::largestDifference(marked.toQImage(), plain.toQImage()), 0);
    EXPECT_EQ(platform::drawing::stampedPart(marked, plain), platform::graphics::PixelRect());
}

TEST(StampToBeMade, ThatFailsGivesNoPicture)
{
    const test::LogLines log;
    const platform::graphics::Image plain = photo();
    const platform::graphics::Image marked = platform::drawing::stamped(plain, []() -> Stamp {
        throw std::runtime_error("no memory for the layer");
    });

    EXPECT_FALSE(platform::drawing::stampedPart(marked, plain).has_value());
    EXPECT_TRUE(marked.toQImage().isNull());
    EXPECT_TRUE(log.lines().first().contains(u"no memory for the layer"_s));
}

TEST(Stamp, LaysEachSampleOverByItsOpacity)
{
    const platform::graphics::Image plain = photo();
    const QImage before = plain.toQImage();
    const QImage layer = fadingLayer(80, 40);

    const QImage marked
        = platform::drawing::stamped(plain, Stamp{.layer = layer, .topLeft = {3, 5}}).toQImage();

    const auto laidOver = [](int above, int below, int alpha) {
        return (above * alpha + below * (255 - alpha) + 127) / 255;
    };
    for (int y = 0; y < layer.height(); ++y) {
        for (int x = 0; x < layer.width(); ++x) {
            const QRgb above = layer.pixel(x, y);
            const QRgb below = before.pixel(x + 3, y + 5);
            const QRgb expected = qRgb(
                laidOver(qRed(above), qRed(below), qAlpha(above)),
                laidOver(qGreen(above), qGreen(below), qAlpha(above)),
                laidOver(qBlue(above), qBlue(below), qAlpha(above))
            );
            ASSERT_EQ(marked.pixel(x + 3, y + 5), expected) << x << ", " << y;
        }
    }
}

TEST(Stamp, IsLaidOnAPhotoWithAProfileThatCannotBeDrawnIn)
{
    const test::TemporaryFolder folder;
    const QString path = test::PhotoBuilder()
                             .size(90, 60)
                             .solid({10, 20, 30})
                             .format(test::PhotoFormat::Png)
                             .iccProfile(test::scannerProfile())
                             .write(folder.path(u"a.png"_s));
    QImage red(90, 60, QImage::Format_RGBA8888);
    red.fill(Qt::red);

    const auto marked = platform::drawing::stamped(
        *test::openedPhoto(path).image(), Stamp{.layer = red, .topLeft = {}}
    );

    EXPECT_EQ(marked.iccProfile(), test::scannerProfile());
    EXPECT_EQ(
        platform::codecs::encode(
            marked, platform::codecs::FileFormat::Png, {}, folder.path(u"b.png"_s)
        ),
        true
    );
}

TEST(Stamp, TilesThePhotoFromItsCornerOn)
{
    const platform::graphics::Image plain = photo();
    const QImage layer = fadingLayer(31, 17);

    const QImage tiled
        = platform::drawing::stamped(
              plain, {.layer = layer, .topLeft = {-8, 40}, .repeat = Stamp::Repeat::Tiled}
        )
              .toQImage();

    // Every copy alone, each on what the others have left.
    platform::graphics::Image copies = plain;
    for (int y = 40 - 3 * 17; y < plain.height(); y += 17) {
        for (int x = -8; x < plain.width(); x += 31)
            copies = platform::drawing::stamped(copies, Stamp{.layer = layer, .topLeft = {x, y}});
    }
    EXPECT_EQ(test::largestDifference(tiled, copies.toQImage()), 0);
}

TEST(Stamp, MakesTransparentPixelsAsOpaqueAsItself)
{
    QImage clear(90, 60, QImage::Format_RGBA8888);
    clear.fill(QColor(10, 20, 30, 0));

    const QImage marked
        = platform::drawing::stamped(platform::graphics::Image::fromQImage(clear), once())
              .toQImage();

    const QRgb expected = fadingLayer(31, 17).pixel(15, 8);
    EXPECT_EQ(qUnpremultiply(marked.pixel(35, 18)), qUnpremultiply(qPremultiply(expected)));
    EXPECT_EQ(qAlpha(marked.pixel(19, 18)), 0);
}

TEST(MarkedPhoto, StandsForThePhotoAllOverThePicture)
{
    const platform::graphics::Image plain = photo();
    const platform::graphics::Image picture = photo();

    const auto marked = platform::drawing::markedOn(plain, picture);

    EXPECT_FALSE(platform::drawing::isStamped(picture, plain));
    EXPECT_TRUE(platform::drawing::isStamped(marked, plain));
    EXPECT_EQ(
        platform::drawing::stampedPart(marked, plain), (platform::graphics::PixelRect{0, 0, 90, 60})
    );
    EXPECT_EQ(test::largestDifference(marked.toQImage(), picture.toQImage()), 0);
}
