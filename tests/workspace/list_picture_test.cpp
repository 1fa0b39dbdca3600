// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/foundation/literals.h>
#include <workspace/list_picture.h>

#include <support/case_name.h>
#include <support/geometry_printing.h>
#include <support/photo_builder.h>
#include <support/temporary_folder.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace brenvaldo;
using platform::graphics::Image;
using workspace::ListPicture;

namespace {

struct Thumbnail
{
    const char* name;
    platform::graphics::PixelSize photo;
    platform::graphics::PixelSize thumbnail;
};

void PrintTo(const Thumbnail& thumbnail, std::ostream* out) { *out << thumbnail.name; }

class Thumbnails : public testing::TestWithParam<Thumbnail>
{
};

class ListPictures : public testing::Test
{
protected:
    /// What is drawn in a square of 94 pixels for a photo of that size.
    [[nodiscard]] std::optional<platform::graphics::PixelSize>
    drawnSize(ListPicture::Kind kind, int width, int height) const
    {
        const QString path
            = test::PhotoBuilder().size(width, height).write(folder.path(u"a.png"_s));
        const auto drawn = workspace::drawnPicture({.kind = kind, .path = path}, 94);
        return drawn ? std::optional(drawn->pixelSize()) : std::nullopt;
    }

    test::TemporaryFolder folder;
};

} // namespace

TEST_P(Thumbnails, FitABoxOf94Pixels)
{
    EXPECT_EQ(workspace::thumbnailSize(GetParam().photo), GetParam().thumbnail);
}

INSTANTIATE_TEST_SUITE_P(
    ListPicture,
    Thumbnails,
    testing::Values(
        Thumbnail{"Tall", {94, 188}, {47, 94}},
        Thumbnail{"Wide", {4000, 3000}, {94, 70}},
        Thumbnail{"Square", {3000, 3000}, {94, 94}},
        Thumbnail{"SmallSquare", {1, 1}, {94, 94}},
        Thumbnail{"Thread", {1, 4000}, {1, 94}},
        Thumbnail{"Unreadable", {0, 0}, {0, 0}}
    ),
    test::CaseName{}
);

TEST_F(ListPictures, AreThumbnailsInABox)
{
    EXPECT_EQ(
        drawnSize(ListPicture::Kind::Thumbnail, 400, 200), (platform::graphics::PixelSize{94, 47})
    );
    EXPECT_EQ(
        drawnSize(ListPicture::Kind::Thumbnail, 10, 5), (platform::graphics::PixelSize{94, 47})
    );
}

TEST_F(ListPictures, AreFullPicturesThatAreOnlyShrunk)
{
    EXPECT_EQ(
        drawnSize(ListPicture::Kind::FullPicture, 400, 200), (platform::graphics::PixelSize{94, 47})
    );
    EXPECT_EQ(
        drawnSize(ListPicture::Kind::FullPicture, 10, 5), (platform::graphics::PixelSize{10, 5})
    );
}

TEST_F(ListPictures, AreNoPictureForTheSignOfAFileAndForAnUnreadablePhoto)
{
    EXPECT_EQ(drawnSize(ListPicture::Kind::Generic, 40, 20), std::nullopt);
    EXPECT_FALSE(workspace::drawnPicture({.path = folder.write(u"b.jpg"_s, "no photo")}, 94));
}

TEST(ResizedImage, HasExactlyTheAskedSizeAndFourSamplesOfEightBits)
{
    const Image grey = Image::fromQImage(QImage(40, 30, QImage::Format_Grayscale8));

    const auto resized = workspace::resizedImagetoPixelDimensions(grey, {7, 50});

    ASSERT_TRUE(resized);
    EXPECT_EQ(resized->pixelSize(), (platform::graphics::PixelSize{7, 50}));
    EXPECT_EQ(resized->colorModel(), platform::graphics::ColorModel::Rgb);
    EXPECT_EQ(resized->bitsPerComponent(), 8);
    EXPECT_TRUE(resized->hasAlpha());
}

TEST(ResizedImage, DrawsTheColorsAndTheTransparencyOfTheSource)
{
    QImage half(8, 8, QImage::Format_ARGB32);
    half.fill(QColor(200, 100, 50, 128));

    const auto resized = workspace::resizedImagetoPixelDimensions(Image::fromQImage(half), {4, 4});

    ASSERT_TRUE(resized);
    const QColor seen = resized->toQImage().pixelColor(2, 2);
    EXPECT_NEAR(seen.red(), 200, 2);
    EXPECT_NEAR(seen.blue(), 50, 2);
    EXPECT_EQ(seen.alpha(), 128);
}

TEST(ResizedImage, IsNothingForNoSize)
{
    const Image image = Image::fromQImage(QImage(4, 4, QImage::Format_RGB32));

    EXPECT_FALSE(workspace::resizedImagetoPixelDimensions(image, {0, 4}));
}
