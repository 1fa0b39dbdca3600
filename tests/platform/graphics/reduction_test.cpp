// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/foundation/literals.h>
#include <platform/graphics/image.h>
#include <platform/graphics/image_node.h>

#include <support/pixel_probe.h>
#include <support/temporary_folder.h>

#include <gmock/gmock.h>

namespace brenvaldo {
namespace {

using namespace platform::graphics;
using namespace test;

/// A picture whose samples `sample(x, y, band)` answers.
template <class Sample>
Image pictureOf(PixelSize size, int bands, Sample sample)
{
    std::vector<quint16> samples;
    for (int y = 0; y < size.height; ++y) {
        for (int x = 0; x < size.width; ++x) {
            for (int band = 0; band < bands; ++band)
                samples.push_back(static_cast<quint16>(sample(x, y, band)));
        }
    }
    ImageNode node;
    node.pixels = vips::VImage(vips_image_new_from_memory_copy(
        samples.data(),
        samples.size() * sizeof(quint16),
        size.width,
        size.height,
        bands,
        VIPS_FORMAT_USHORT
    ));
    const std::array models
        = {ColorModel::Gray, ColorModel::Gray, ColorModel::Rgb, ColorModel::Rgb, ColorModel::Cmyk};
    node.colorModel = models.at(static_cast<std::size_t>(bands - 1));
    return makeImage(node);
}

/// The samples of one pixel.
std::vector<double> pixelOf(const Image& image, int x, int y)
{
    return image.node()->pixels.getpoint(x, y);
}

TEST(Reduction, LeavesARampWhereItIs)
{
    const Image ramp = pictureOf({600, 480}, 1, [](int x, int y, int) { return 50 * x + 30 * y; });

    const Image small = ramp.scaledTo({240, 160});

    // The centre of pixel 100 of 240 lies at 250.75 of 600, that of pixel 60 of 160 at 181.
    EXPECT_NEAR(pixelOf(small, 100, 60).front(), 50 * 250.75 + 30 * 181, 12);
    EXPECT_NEAR(pixelOf(small, 200, 10).front(), 50 * 500.75 + 30 * 31, 12);
}

TEST(Reduction, OvershootsAtAnEdgeAsTheKernelDoes)
{
    const Image edge
        = pictureOf({400, 4}, 1, [](int x, int, int) { return x < 200 ? 20000 : 40000; });

    const Image small = edge.scaledTo({200, 4});

    const std::vector<double> expected = {20000, 20074, 19695, 21072, 38928, 40305, 39926, 40000};
    for (int i = 0; i < 8; ++i)
        EXPECT_NEAR(pixelOf(small, 96 + i, 2).front(), expected.at(static_cast<std::size_t>(i)), 1);
}

TEST(Reduction, ContinuesThePictureBeyondItsEdges)
{
    const Image edge
        = pictureOf({90, 90}, 1, [](int x, int y, int) { return x < 60 && y < 60 ? 9000 : 0; });

    const Image small = edge.scaledTo({30, 30});

    EXPECT_EQ(pixelOf(small, 0, 0).front(), 9000);
    EXPECT_EQ(pixelOf(small, 29, 29).front(), 0);
}

TEST(Reduction, TakesEachBandByItself)
{
    const auto sampleOf
        = [](int x, int y, int band) { return 3000 * (band + 1) + 11 * x * (band + 1) + 7 * y; };
    for (const int bands : {1, 2, 3, 4, 5}) {
        const Image all = pictureOf({101, 83}, bands, sampleOf).scaledTo({37, 29});

        for (int band = 0; band < bands; ++band) {
            const Image one = pictureOf({101, 83}, 1, [&](int x, int y, int) {
                                  return sampleOf(x, y, band);
                              }).scaledTo({37, 29});
            for (const int x : {0, 17, 36})
                EXPECT_EQ(
                    pixelOf(all, x, 28).at(static_cast<std::size_t>(band)),
                    pixelOf(one, x, 28).front()
                );
        }
    }
}

TEST(Reduction, TakesAFewPixelsOfAManyAsItTakesAll)
{
    const Image picture = pictureOf({900, 700}, 3, [](int x, int y, int band) {
        return (x * 37 + y * 91 + band * 5000) % 65536;
    });
    const Image small = picture.scaledTo({311, 223});
    const auto all = small.copiedToMemory();
    ASSERT_TRUE(all);

    for (const auto& [x, y] : {std::pair{310, 222}, {3, 200}, {150, 9}, {151, 8}, {0, 0}})
        EXPECT_EQ(pixelOf(small, x, y), pixelOf(*all, x, y));
}

TEST(Reduction, TakesRowsInTheirOrderAsItTakesAnyRows)
{
    const TemporaryFolder folder;
    const QString path = PhotoBuilder()
                             .size(640, 480)
                             .pixels([](int x, int y) {
                                 return Samples{x * 7 % 256, y * 5 % 256, (x + y) % 256};
                             })
                             .format(PhotoFormat::Png)
                             .write(folder.path(u"photo"_s));
    const auto inMemory = openedPhoto(path).image()->copiedToMemory();
    ASSERT_TRUE(inMemory);

    for (const PixelSize size : {PixelSize{500, 375}, {100, 75}, {7, 5}, {1, 480}, {640, 1}}) {
        const Image inOrder = openedPhoto(path).image()->scaledTo(size);

        EXPECT_EQ(largestDifference(inOrder.toQImage(), inMemory->scaledTo(size).toQImage()), 0);
    }
}

TEST(Reduction, ReadsAPhotoAnewForEachEvaluation)
{
    const TemporaryFolder folder;
    const Image small = openedPhoto(PhotoBuilder().size(64, 48).write(folder.path(u"photo"_s)))
                            .image()
                            ->scaledTo({20, 15});

    const QImage first = small.toQImage();

    ASSERT_FALSE(first.isNull());
    EXPECT_EQ(largestDifference(first, small.toQImage()), 0);
}

} // namespace
} // namespace brenvaldo
