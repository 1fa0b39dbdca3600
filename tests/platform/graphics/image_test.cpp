// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/foundation/literals.h>
#include <platform/graphics/image.h>

#include <support/case_name.h>
#include <support/color_profiles.h>
#include <support/log_lines.h>
#include <support/photo_builder.h>
#include <support/pixel_probe.h>
#include <support/temporary_folder.h>

#include <gmock/gmock.h>

#include <limits>

namespace brenvaldo {
namespace {

using namespace platform;
using namespace platform::graphics;
using namespace test;

/// A picture of a photo that is gone from the disk only after the test.
class ImageOf : public testing::Test
{
protected:
    [[nodiscard]] Image imageOf(const PhotoBuilder& photo) const
    {
        return *openedPhoto(photo.write(m_folder.path(u"photo"_s))).image();
    }

private:
    TemporaryFolder m_folder;
};

struct ModelCase
{
    const char* name;
    PhotoModel model;
    int depth;

    friend void PrintTo(const ModelCase& row, std::ostream* out) { *out << row.name; }
};

class ImageScaling : public ImageOf, public testing::WithParamInterface<ModelCase>
{
};

TEST_P(ImageScaling, KeepsAConstantPictureConstant)
{
    const PhotoBuilder photo = PhotoBuilder()
                                   .size(101, 67)
                                   .model(GetParam().model)
                                   .depth(GetParam().depth)
                                   .solid({90, 130, 33, 200})
                                   .format(PhotoFormat::Tiff);
    const QColor color = imageOf(photo).toQImage().pixelColor(0, 0);

    for (const PixelSize size :
         {PixelSize{33, 20}, {50, 67}, {203, 150}, {7, 300}, {13, 9}, {17, 11}, {20, 67}}) {
        const QImage scaled = imageOf(photo).scaledTo(size).toQImage();

        ASSERT_EQ(scaled.size(), QSize(size.width, size.height));
        QImage constant(scaled.size(), QImage::Format_ARGB32_Premultiplied);
        constant.fill(color);
        EXPECT_LE(largestDifference(scaled, constant), GetParam().depth == 16 ? 1 : 0);
    }
}

TEST_P(ImageScaling, KeepsModelDepthAndAlpha)
{
    const PhotoBuilder photo
        = PhotoBuilder().model(GetParam().model).depth(GetParam().depth).format(PhotoFormat::Tiff);
    const Image before = imageOf(photo);

    const Image after = before.scaledTo({20, 20});

    EXPECT_EQ(after.colorModel(), before.colorModel());
    EXPECT_EQ(after.bitsPerComponent(), before.bitsPerComponent());
    EXPECT_EQ(after.hasAlpha(), before.hasAlpha());
}

INSTANTIATE_TEST_SUITE_P(
    Models,
    ImageScaling,
    testing::Values(
        ModelCase{"Gray", PhotoModel::Gray, 8},
        ModelCase{"Gray16", PhotoModel::Gray, 16},
        ModelCase{"GrayAlpha", PhotoModel::GrayAlpha, 8},
        ModelCase{"Rgb", PhotoModel::Rgb, 8},
        ModelCase{"Rgb16", PhotoModel::Rgb, 16},
        ModelCase{"RgbAlpha", PhotoModel::RgbAlpha, 8},
        ModelCase{"RgbAlpha16", PhotoModel::RgbAlpha, 16},
        ModelCase{"Cmyk", PhotoModel::Cmyk, 8},
        ModelCase{"Cmyk16", PhotoModel::Cmyk, 16}
    ),
    CaseName()
);

struct SizeCase
{
    const char* name;
    PixelSize from;
    PixelSize to;

    friend void PrintTo(const SizeCase& row, std::ostream* out) { *out << row.name; }
};

class ImageScaledSize : public ImageOf, public testing::WithParamInterface<SizeCase>
{
};

TEST_P(ImageScaledSize, IsExact)
{
    const SizeCase& row = GetParam();
    const Image image
        = imageOf(PhotoBuilder().size(row.from.width, row.from.height).format(PhotoFormat::Png));

    const QImage scaled = image.scaledTo(row.to).toQImage();

    EXPECT_EQ(scaled.size(), QSize(row.to.width, row.to.height));
}

INSTANTIATE_TEST_SUITE_P(
    Sizes,
    ImageScaledSize,
    testing::Values(
        SizeCase{"Quarter", {400, 300}, {100, 75}},
        SizeCase{"OddRatio", {401, 299}, {133, 100}},
        SizeCase{"Distorted", {300, 400}, {100, 50}},
        SizeCase{"WiderAndLower", {100, 400}, {300, 50}},
        SizeCase{"Enlarged", {47, 33}, {211, 97}},
        SizeCase{"OnePixel", {401, 299}, {1, 1}},
        SizeCase{"FromOnePixel", {1, 1}, {30, 20}},
        SizeCase{"ColumnLengthened", {1, 3000}, {2, 10000}},
        SizeCase{"ToAColumn", {300, 200}, {1, 10000}},
        SizeCase{"ToARow", {300, 200}, {10000, 1}},
        SizeCase{"OneSideOnly", {300, 200}, {300, 100}}
    ),
    CaseName()
);

using ImageTest = ImageOf;

TEST_F(ImageTest, DoesNotBleedTransparentColors)
{
    const Image image
        = imageOf(PhotoBuilder()
                      .size(64, 64)
                      .model(PhotoModel::RgbAlpha)
                      .pixels([](int x, int /*y*/) {
                          return x % 2 == 0 ? Samples{255, 0, 0, 255} : Samples{0, 255, 0, 0};
                      })
                      .format(PhotoFormat::Png));

    const QColor color = image.scaledTo({16, 16}).toQImage().pixelColor(8, 8);

    EXPECT_NEAR(color.alpha(), 128, 2);
    EXPECT_GE(color.red(), 253);
    EXPECT_LE(color.green(), 2);
}

TEST_F(ImageTest, AveragesTheAreaThatAPixelStandsFor)
{
    const Image image
        = imageOf(PhotoBuilder()
                      .size(800, 600)
                      .model(PhotoModel::Gray)
                      .pixels([](int x, int y) { return Samples{(x + y) % 2 == 0 ? 0 : 200}; })
                      .format(PhotoFormat::Png));

    const QImage scaled = image.scaledTo({80, 60}).toQImage();

    EXPECT_NEAR(qRed(scaled.pixel(40, 30)), 100, 2);
    EXPECT_NEAR(qRed(scaled.pixel(3, 57)), 100, 2);
}

TEST_F(ImageTest, TurnsAndFlips)
{
    const PhotoBuilder photo = PhotoBuilder().size(48, 32).corners().format(PhotoFormat::Png);
    using Turn = Image::QuarterTurn;

    EXPECT_EQ(cornerColors(imageOf(photo).turned(Turn::Clockwise).toQImage()), "BRWG");
    EXPECT_EQ(cornerColors(imageOf(photo).turned(Turn::CounterClockwise).toQImage()), "GWRB");
    EXPECT_EQ(cornerColors(imageOf(photo).turned(Turn::Half).toQImage()), "WBGR");
    EXPECT_EQ(cornerColors(imageOf(photo).flipped(Image::Axis::Horizontal).toQImage()), "GRWB");
    EXPECT_EQ(cornerColors(imageOf(photo).flipped(Image::Axis::Vertical).toQImage()), "BWRG");
}

TEST_F(ImageTest, CropsToThePartThatMeets)
{
    const PhotoBuilder photo = PhotoBuilder().size(48, 32).corners().format(PhotoFormat::Png);

    const auto inner = imageOf(photo).croppedTo({24, 16, 24, 16});
    const auto hanging = imageOf(photo).croppedTo({-10, -10, 22, 18});

    ASSERT_TRUE(inner && hanging);
    EXPECT_EQ(inner->pixelSize(), (PixelSize{24, 16}));
    EXPECT_EQ(inner->toQImage().pixelColor(23, 15), QColor(Qt::white));
    EXPECT_EQ(hanging->pixelSize(), (PixelSize{12, 8}));
    EXPECT_EQ(hanging->toQImage().pixelColor(0, 0), QColor(Qt::red));
}

TEST_F(ImageTest, CropsToNothingOutside)
{
    const Image image = imageOf(PhotoBuilder());

    EXPECT_FALSE(image.croppedTo({47, 0, 10, 10}));
    EXPECT_FALSE(image.croppedTo({-10, 0, 10, 10}));
    EXPECT_FALSE(image.croppedTo({3, 3, 0, 10}));
}

TEST_F(ImageTest, CropsToNothingBehindEdgesFarAway)
{
    constexpr int farthest = std::numeric_limits<int>::min();
    const Image image = imageOf(PhotoBuilder());

    EXPECT_FALSE(image.croppedTo({farthest / 2, 0, farthest, 5}));
    EXPECT_FALSE(image.croppedTo({0, farthest / 2, 5, farthest}));
}

TEST_F(ImageTest, OfAnImpossibleSizeFailsWhenItIsDrawn)
{
    const LogLines log;

    EXPECT_TRUE(imageOf(PhotoBuilder()).scaledTo({2'000'000'000, 10}).toQImage().isNull());
    EXPECT_EQ(log.lines().size(), 1);
}

TEST_F(ImageTest, CanBeEvaluatedAgainOnceInMemory)
{
    const auto image = imageOf(PhotoBuilder().format(PhotoFormat::Png)).copiedToMemory();

    ASSERT_TRUE(image);
    EXPECT_EQ(largestDifference(image->toQImage(), image->toQImage()), 0);
    EXPECT_FALSE(image->toQImage().isNull());
}

TEST_F(ImageTest, ConvertsItsProfileForTheScreen)
{
    const Image wide = imageOf(
        PhotoBuilder().solid({128, 200, 60}).iccProfile(wideProfile()).format(PhotoFormat::Png)
    );

    const QColor shown = wide.toQImage().pixelColor(5, 5);

    EXPECT_LT(shown.red(), 100); // the green of the wide space lies outside of sRGB
    EXPECT_GE(shown.green(), 200);
}

TEST_F(ImageTest, GoesToQtAndBack)
{
    QImage painted(31, 17, QImage::Format_ARGB32);
    painted.fill(QColor(10, 200, 90, 128));

    const Image image = Image::fromQImage(painted);

    EXPECT_TRUE(image.hasAlpha());
    EXPECT_EQ(image.bitsPerComponent(), 8);
    const QColor back = image.toQImage().pixelColor(3, 3);
    EXPECT_NEAR(back.green(), 200, 1);
    EXPECT_EQ(back.alpha(), 128);
}

TEST_F(ImageTest, IsNoPictureWhenAQtPictureIsTooLarge)
{
    const LogLines log;
    QImage line(10'000'001, 1, QImage::Format_Grayscale8);
    line.fill(77);

    const Image image = Image::fromQImage(line);

    EXPECT_TRUE(image.toQImage().isNull());
    EXPECT_EQ(image.colorModel(), ColorModel::Gray);
}

TEST_F(ImageTest, KeepsGrayOfQtGray)
{
    QImage painted(31, 17, QImage::Format_Grayscale8);
    painted.fill(77);

    const Image image = Image::fromQImage(painted);

    EXPECT_EQ(image.colorModel(), ColorModel::Gray);
    EXPECT_EQ(image.toQImage().pixelColor(3, 3), QColor(77, 77, 77));
}

} // namespace
} // namespace brenvaldo
