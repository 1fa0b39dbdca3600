// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/codecs/image_source.h>
#include <platform/foundation/literals.h>
#include <platform/graphics/free_turn.h>
#include <platform/graphics/screen_scaling.h>

#include <support/geometry_printing.h>
#include <support/photo_builder.h>
#include <support/pixel_probe.h>
#include <support/temporary_folder.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

#include <vector>

using namespace brenvaldo;
using platform::graphics::PixelSize;
using test::PhotoModel;

namespace {

class ScaledForScreen : public testing::Test
{
protected:
    platform::graphics::Image photo(PhotoModel model, int depth, int width, int height)
    {
        const QString path
            = test::PhotoBuilder()
                  .size(width, height)
                  .model(model)
                  .depth(depth)
                  .pixels([](int x, int y) {
                      return test::Samples{x * 7 % 256, y * 5 % 256, (x + y) % 256, 255, 255};
                  })
                  .format(test::PhotoFormat::Png)
                  .write(folder.path(u"a.png"_s));
        return *test::openedPhoto(path).image(
            {.access = platform::codecs::ImageSource::Access::Random, .atLeast = {}}
        );
    }

    test::TemporaryFolder folder;
};

struct KindCase
{
    const char* name;
    PhotoModel model;
    int depth;
};

class ScaledForScreenKind : public ScaledForScreen, public testing::WithParamInterface<KindCase>
{
};

} // namespace

TEST_F(ScaledForScreen, TakesTheSmallerFormThatAPictureBrings)
{
    const auto large = photo(PhotoModel::Rgb, 8, 400, 240);
    const auto small = photo(PhotoModel::Gray, 8, 100, 60);
    std::vector<PixelSize> asked;
    const auto image = drawnSmallerBy(large, [&](PixelSize size) {
        asked.push_back(size);
        return small;
    });

    EXPECT_EQ(image.toQImage(), large.toQImage());
    EXPECT_EQ(scaledForScreen(image, {400, 240}).toQImage(), large.toQImage());
    EXPECT_TRUE(asked.empty());

    EXPECT_EQ(scaledForScreen(image, {100, 60}).toQImage(), small.toQImage());
    EXPECT_EQ(asked, (std::vector<PixelSize>{{100, 60}}));
    EXPECT_NE(scaledForScreen(large, {100, 60}).toQImage(), small.toQImage());
}

TEST_P(ScaledForScreenKind, AveragesWholeBlocks)
{
    const platform::graphics::Image image = photo(GetParam().model, GetParam().depth, 400, 240);
    const QImage pixels = image.toQImage();

    const QImage scaled = platform::graphics::scaledForScreen(image, {100, 60}).toQImage();

    ASSERT_EQ(scaled.size(), QSize(100, 60));
    for (int y = 0; y < scaled.height(); ++y) {
        for (int x = 0; x < scaled.width(); ++x) {
            int green = 0;
            for (int index = 0; index < 16; ++index)
                green += qGreen(pixels.pixel(4 * x + index % 4, 4 * y + index / 4));
            ASSERT_NEAR(qGreen(scaled.pixel(x, y)), green / 16.0, 1) << x << ", " << y;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(
    Table,
    ScaledForScreenKind,
    testing::Values(
        KindCase{"Rgb8", PhotoModel::Rgb, 8},
        KindCase{"Gray8", PhotoModel::Gray, 8},
        KindCase{"Rgb16", PhotoModel::Rgb, 16}
    ),
    [](const auto& row) { return row.param.name; }
);

TEST_F(ScaledForScreen, GivesAnySizeAndLooksLikeAScaledPicture)
{
    test::PhotoBuilder builder;
    builder.size(643, 427).gradient().format(test::PhotoFormat::Png);
    const QString path = builder.write(folder.path(u"b.png"_s));
    const platform::graphics::Image image = *test::openedPhoto(path).image(
        {.access = platform::codecs::ImageSource::Access::Random, .atLeast = {}}
    );

    for (const PixelSize size : {PixelSize{200, 133}, PixelSize{90, 60}, PixelSize{640, 425}}) {
        const QImage quick = platform::graphics::scaledForScreen(image, size).toQImage();
        EXPECT_LE(test::largestDifference(quick, image.scaledTo(size).toQImage()), 4) << size.width;
    }
}

TEST_F(ScaledForScreen, LeavesATransparentPictureToTheOrdinaryWay)
{
    const platform::graphics::Image image = photo(PhotoModel::RgbAlpha, 8, 200, 120);
    const PixelSize size{50, 30};

    EXPECT_EQ(
        test::largestDifference(
            platform::graphics::scaledForScreen(image, size).toQImage(),
            image.scaledTo(size).toQImage()
        ),
        0
    );
}

TEST_F(ScaledForScreen, DrawsPicturesSmallerThatKnowHow)
{
    const platform::graphics::Image small = photo(PhotoModel::Rgb, 8, 40, 24);
    QList<PixelSize> asked;
    const platform::graphics::Image image = platform::graphics::drawnSmallerBy(
        photo(PhotoModel::Rgb, 8, 400, 240),
        [&](PixelSize size) {
            asked.append(size);
            return small;
        }
    );

    EXPECT_EQ(platform::graphics::scaledForScreen(image, {40, 24}).node(), small.node());
    EXPECT_NE(platform::graphics::scaledForScreen(image, {400, 240}).node(), small.node());
    EXPECT_NE(platform::graphics::scaledForScreen(image, {40, 240}).node(), small.node());
    EXPECT_NE(platform::graphics::scaledForScreen(image, {400, 24}).node(), small.node());
    EXPECT_EQ(asked, QList<PixelSize>({{40, 24}}));
    const auto part = image.croppedTo({.x = 0, .y = 0, .width = 200, .height = 100});
    EXPECT_NE(platform::graphics::scaledForScreen(*part, {40, 24}).node(), small.node());
}

TEST(Shrinking, PutsTheEdgesOfPartsOnWholePixels)
{
    const platform::graphics::Shrinking third = {{300, 600}, {100, 100}};

    EXPECT_EQ(third.across(), 1 / 3.0);
    EXPECT_EQ(third.along(), 1 / 6.0);
    const auto part = third.of({.x = 4, .y = 10, .width = 10, .height = 30});
    EXPECT_EQ(part.x, 1);
    EXPECT_EQ(part.y, 2);
    EXPECT_EQ(part.width, 4);
    EXPECT_EQ(part.height, 5);
    EXPECT_EQ(third.of({.x = 3, .y = 6, .width = 1, .height = 1}).width, 1);
    EXPECT_EQ(third.of({.x = 3, .y = 6, .width = 1, .height = 1}).height, 1);
    EXPECT_EQ(third.of({.x = -30, .y = -60, .width = 30, .height = 60}).x, -10);
}

TEST_F(ScaledForScreen, DrawsATurnedPhotoAsOftenAsNeedBe)
{
    using platform::graphics::Image;
    const QString path
        = test::PhotoBuilder().size(400, 240).gradient().write(folder.path(u"b.jpg"_s));
    const auto photo = [&path] { return *test::openedPhoto(path).image(); };
    const Image turned[]
        = {photo().turned(Image::QuarterTurn::Clockwise),
           platform::graphics::freelyTurned(
               photo(), {.degrees = 45, .canvas = {452, 452}, .centre = {226, 226}}
           )};
    for (const Image& image : turned) {
        const QImage first = platform::graphics::scaledForScreen(image, {48, 80}).toQImage();
        EXPECT_FALSE(first.isNull());
        EXPECT_EQ(platform::graphics::scaledForScreen(image, {48, 80}).toQImage(), first);
    }
}
