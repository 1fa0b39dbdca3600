// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/codecs/image_destination.h>
#include <platform/foundation/literals.h>

#include <support/case_name.h>
#include <support/color_profiles.h>
#include <support/exif_block.h>
#include <support/log_lines.h>
#include <support/photo_builder.h>
#include <support/pixel_probe.h>
#include <support/temporary_folder.h>

#include <gmock/gmock.h>

namespace brenvaldo {
namespace {

using namespace platform;
using namespace platform::containers;
using namespace platform::graphics;
using namespace platform::codecs;
using namespace test;

struct RoundTripCase
{
    const char* name;
    FileFormat format;
    PhotoModel model;
    int depth;
    int tolerance;
    ColorModel expectedModel;
    int expectedDepth;
    bool expectedAlpha;

    friend void PrintTo(const RoundTripCase& row, std::ostream* out) { *out << row.name; }
};

class ImageDestinationRoundTrip : public testing::TestWithParam<RoundTripCase>
{
};

TEST_P(ImageDestinationRoundTrip, GivesThePictureBack)
{
    const RoundTripCase& row = GetParam();
    const TemporaryFolder folder;
    const QString source = PhotoBuilder()
                               .size(47, 33)
                               .model(row.model)
                               .depth(row.depth)
                               .format(PhotoFormat::Tiff)
                               .dotsPerInch(144)
                               .write(folder.path(u"source.tiff"_s));
    const QString target = folder.path(u"target"_s);

    const bool done
        = encode(*openedPhoto(source).image(), row.format, {.lossyQuality = 1.0}, target);

    ASSERT_TRUE(done);
    const ImageHeader header = openedPhoto(target).header();
    EXPECT_EQ(header.storedSize, (PixelSize{47, 33}));
    EXPECT_EQ(header.colorModel, row.expectedModel);
    EXPECT_EQ(header.bitsPerComponent, row.expectedDepth);
    EXPECT_EQ(header.hasAlpha, row.expectedAlpha);
    EXPECT_NEAR(header.dotsPerInch, row.format == FileFormat::Gif ? 72 : 144, 0.5);
    EXPECT_LE(largestDifference(storedPixels(source), storedPixels(target)), row.tolerance);
}

INSTANTIATE_TEST_SUITE_P(
    Formats,
    ImageDestinationRoundTrip,
    testing::Values(
        RoundTripCase{
            "JpegRgb", FileFormat::Jpeg, PhotoModel::Rgb, 8, 4, ColorModel::Rgb, 8, false},
        RoundTripCase{
            "JpegRgb16", FileFormat::Jpeg, PhotoModel::Rgb, 16, 4, ColorModel::Rgb, 8, false},
        RoundTripCase{
            "JpegGray", FileFormat::Jpeg, PhotoModel::Gray, 8, 2, ColorModel::Gray, 8, false},
        RoundTripCase{
            "JpegCmyk", FileFormat::Jpeg, PhotoModel::Cmyk, 8, 5, ColorModel::Cmyk, 8, false},
        RoundTripCase{"PngRgb", FileFormat::Png, PhotoModel::Rgb, 8, 0, ColorModel::Rgb, 8, false},
        RoundTripCase{
            "PngRgb16", FileFormat::Png, PhotoModel::Rgb, 16, 0, ColorModel::Rgb, 16, false},
        RoundTripCase{
            "PngGray", FileFormat::Png, PhotoModel::Gray, 8, 0, ColorModel::Gray, 8, false},
        RoundTripCase{
            "PngGrayAlpha",
            FileFormat::Png,
            PhotoModel::GrayAlpha,
            8,
            0,
            ColorModel::Gray,
            8,
            true},
        RoundTripCase{
            "PngRgbAlpha", FileFormat::Png, PhotoModel::RgbAlpha, 8, 0, ColorModel::Rgb, 8, true},
        RoundTripCase{
            "PngRgbAlpha16",
            FileFormat::Png,
            PhotoModel::RgbAlpha,
            16,
            0,
            ColorModel::Rgb,
            16,
            true},
        RoundTripCase{
            "PngCmyk", FileFormat::Png, PhotoModel::Cmyk, 8, 0, ColorModel::Rgb, 8, false},
        RoundTripCase{
            "TiffRgb", FileFormat::Tiff, PhotoModel::Rgb, 8, 0, ColorModel::Rgb, 8, false},
        RoundTripCase{
            "TiffRgb16", FileFormat::Tiff, PhotoModel::Rgb, 16, 0, ColorModel::Rgb, 16, false},
        RoundTripCase{
            "TiffGray", FileFormat::Tiff, PhotoModel::Gray, 8, 0, ColorModel::Gray, 8, false},
        RoundTripCase{
            "TiffRgbAlpha16",
            FileFormat::Tiff,
            PhotoModel::RgbAlpha,
            16,
            0,
            ColorModel::Rgb,
            16,
            true},
        RoundTripCase{
            "TiffCmyk", FileFormat::Tiff, PhotoModel::Cmyk, 8, 0, ColorModel::Cmyk, 8, false},
        RoundTripCase{
            "TiffCmyk16", FileFormat::Tiff, PhotoModel::Cmyk, 16, 1, ColorModel::Cmyk, 16, false},
        RoundTripCase{
            "TiffGrayAlpha16",
            FileFormat::Tiff,
            PhotoModel::GrayAlpha,
            16,
            0,
            ColorModel::Gray,
            16,
            true},
        RoundTripCase{"BmpRgb", FileFormat::Bmp, PhotoModel::Rgb, 8, 0, ColorModel::Rgb, 8, false},
        RoundTripCase{
            "BmpRgb16", FileFormat::Bmp, PhotoModel::Rgb, 16, 0, ColorModel::Rgb, 8, false},
        RoundTripCase{
            "BmpGray", FileFormat::Bmp, PhotoModel::Gray, 8, 0, ColorModel::Gray, 8, false},
        RoundTripCase{
            "BmpCmyk", FileFormat::Bmp, PhotoModel::Cmyk, 8, 0, ColorModel::Rgb, 8, false},
        RoundTripCase{"GifRgb", FileFormat::Gif, PhotoModel::Rgb, 8, 40, ColorModel::Rgb, 8, false},
        RoundTripCase{
            "GifCmyk", FileFormat::Gif, PhotoModel::Cmyk, 8, 40, ColorModel::Rgb, 8, false},
        RoundTripCase{
            "Jpeg2000Rgb", FileFormat::Jpeg2000, PhotoModel::Rgb, 8, 6, ColorModel::Rgb, 8, false},
        RoundTripCase{
            "Jpeg2000Rgb16",
            FileFormat::Jpeg2000,
            PhotoModel::Rgb,
            16,
            6,
            ColorModel::Rgb,
            16,
            false},
        RoundTripCase{
            "Jpeg2000Gray",
            FileFormat::Jpeg2000,
            PhotoModel::Gray,
            8,
            6,
            ColorModel::Gray,
            8,
            false},
        RoundTripCase{
            "Jpeg2000Cmyk",
            FileFormat::Jpeg2000,
            PhotoModel::Cmyk,
            8,
            6,
            ColorModel::Rgb,
            8,
            false},
        RoundTripCase{
            "HeicRgb", FileFormat::Heic, PhotoModel::Rgb, 8, 24, ColorModel::Rgb, 8, false},
        RoundTripCase{
            "HeicGray", FileFormat::Heic, PhotoModel::Gray, 8, 24, ColorModel::Rgb, 8, false},
        RoundTripCase{
            "HeicCmyk", FileFormat::Heic, PhotoModel::Cmyk, 8, 24, ColorModel::Rgb, 8, false},
        RoundTripCase{
            "HeicRgbAlpha", FileFormat::Heic, PhotoModel::RgbAlpha, 8, 40, ColorModel::Rgb, 8, true}
    ),
    CaseName()
);

struct FormatCase
{
    const char* name;
    FileFormat format;

    friend void PrintTo(const FormatCase& row, std::ostream* out) { *out << row.name; }
};

class ImageDestinationAlpha : public testing::TestWithParam<FormatCase>
{
};

TEST_P(ImageDestinationAlpha, IsLaidOnWhite)
{
    const TemporaryFolder folder;
    const QString source = PhotoBuilder()
                               .model(PhotoModel::RgbAlpha)
                               .solid({200, 0, 0, 0})
                               .format(PhotoFormat::Png)
                               .write(folder.path(u"source.png"_s));
    const QString target = folder.path(u"target"_s);

    ASSERT_TRUE(encode(*openedPhoto(source).image(), GetParam().format, {}, target));

    EXPECT_EQ(storedPixels(target).pixelColor(20, 20), QColor(Qt::white));
}

INSTANTIATE_TEST_SUITE_P(
    Formats,
    ImageDestinationAlpha,
    testing::Values(FormatCase{"Jpeg", FileFormat::Jpeg}, FormatCase{"Bmp", FileFormat::Bmp}),
    CaseName()
);

struct ProfileCase
{
    const char* name;
    FileFormat format;
    PhotoModel model;
    qsizetype padding; ///< bytes that make the profile large

    friend void PrintTo(const ProfileCase& row, std::ostream* out) { *out << row.name; }
};

class ImageDestinationProfile : public testing::TestWithParam<ProfileCase>
{
};

TEST_P(ImageDestinationProfile, StaysByteForByte)
{
    const ProfileCase& row = GetParam();
    const TemporaryFolder folder;
    const bool isGray = row.model == PhotoModel::Gray || row.model == PhotoModel::GrayAlpha;
    const QByteArray profile = isGray ? grayProfile() : wideProfile(row.padding);
    const QString source = PhotoBuilder()
                               .model(row.model)
                               .format(PhotoFormat::Tiff)
                               .iccProfile(profile)
                               .write(folder.path(u"source.tiff"_s));
    const QString target = folder.path(u"target"_s);

    ASSERT_TRUE(encode(*openedPhoto(source).image(), row.format, {.lossyQuality = 1.0}, target));

    const auto written = openedPhoto(target).image();
    ASSERT_TRUE(written);
    EXPECT_EQ(written->iccProfile(), profile);
    EXPECT_LE(largestDifference(storedPixels(source), storedPixels(target)), 45);
}

INSTANTIATE_TEST_SUITE_P(
    Formats,
    ImageDestinationProfile,
    testing::Values(
        ProfileCase{"Jpeg", FileFormat::Jpeg, PhotoModel::Rgb, 0},
        ProfileCase{"JpegOfSeveralSegments", FileFormat::Jpeg, PhotoModel::Rgb, 150000},
        ProfileCase{"JpegGray", FileFormat::Jpeg, PhotoModel::Gray, 0},
        ProfileCase{"Png", FileFormat::Png, PhotoModel::Rgb, 0},
        ProfileCase{"PngAlpha", FileFormat::Png, PhotoModel::RgbAlpha, 0},
        ProfileCase{"PngGray", FileFormat::Png, PhotoModel::Gray, 0},
        ProfileCase{"PngGrayAlpha", FileFormat::Png, PhotoModel::GrayAlpha, 0},
        ProfileCase{"Tiff", FileFormat::Tiff, PhotoModel::Rgb, 0},
        ProfileCase{"TiffAlpha", FileFormat::Tiff, PhotoModel::RgbAlpha, 0},
        ProfileCase{"Jpeg2000", FileFormat::Jpeg2000, PhotoModel::Rgb, 0},
        ProfileCase{"Jpeg2000Gray", FileFormat::Jpeg2000, PhotoModel::Gray, 0},
        ProfileCase{"Heic", FileFormat::Heic, PhotoModel::Rgb, 0},
        ProfileCase{"HeicAlpha", FileFormat::Heic, PhotoModel::RgbAlpha, 0}
    ),
    CaseName()
);

TEST(ImageDestination, KeepsAProfileThatThePngLibraryRejects)
{
    const TemporaryFolder folder;
    const QString source = PhotoBuilder()
                               .format(PhotoFormat::Tiff)
                               .iccProfile(oddProfile())
                               .write(folder.path(u"source.tiff"_s));
    const QString target = folder.path(u"target.png"_s);

    ASSERT_TRUE(encode(*openedPhoto(source).image(), FileFormat::Png, {}, target));

    EXPECT_EQ(openedPhoto(target).image()->iccProfile(), oddProfile());
}

TEST(ImageDestination, SubsamplesChromaUpToNineTenths)
{
    const TemporaryFolder folder;
    const QString source = PhotoBuilder().size(300, 200).write(folder.path(u"a.jpg"_s));
    const auto samplingOf = [&](double quality) {
        const QString target = folder.path(u"b.jpg"_s);
        EXPECT_TRUE(encode(
            *openedPhoto(source).image(), FileFormat::Jpeg, {.lossyQuality = quality}, target
        ));
        const QByteArray file = TemporaryFolder::read(target);
        const qsizetype frame = file.indexOf(QByteArray("\xFF\xC0", 2));
        constexpr qsizetype luminanceSampling = 11;
        return static_cast<int>(file.at(frame + luminanceSampling));
    };

    EXPECT_EQ(samplingOf(0.1), 0x22);
    EXPECT_EQ(samplingOf(0.9), 0x22);
    EXPECT_EQ(samplingOf(1.0), 0x11);
}

TEST(ImageDestination, CarriesBlocksIntoHeic)
{
    const TemporaryFolder folder;
    const QString source = PhotoBuilder().write(folder.path(u"a.jpg"_s));
    const QString target = folder.path(u"b.heic"_s);
    const MetadataBlocks blocks = {
        .exif = exifBlock({.make = "Maker of cameras", .dotsPerInch = 300}),
        .xmp = "<x:xmpmeta xmlns:x='adobe:ns:meta/'></x:xmpmeta>",
    };

    ASSERT_TRUE(encode(*openedPhoto(source).image(), FileFormat::Heic, {.blocks = &blocks}, target)
    );

    const QByteArray file = TemporaryFolder::read(target);
    EXPECT_TRUE(file.contains(blocks.exif));
    EXPECT_TRUE(file.contains(blocks.xmp));
    EXPECT_EQ(openedPhoto(target).header().dotsPerInch, 300);
}

class ImageDestinationMemory : public testing::TestWithParam<FileFormat>
{
};

TEST_P(ImageDestinationMemory, RefusesAPictureThatCannotBeHeldWhole)
{
    const TemporaryFolder folder;
    const LogLines log;
    QImage dot(1, 1, QImage::Format_RGB32);
    dot.fill(Qt::gray);
    constexpr int farTooMuch = 9'000'000;
    const Image huge = Image::fromQImage(dot).scaledTo({farTooMuch, farTooMuch});

    EXPECT_FALSE(encode(huge, GetParam(), {}, folder.path(u"huge"_s)));

    EXPECT_THAT(log.lines().join(u'\n').toStdString(), testing::HasSubstr("not enough memory"));
}

INSTANTIATE_TEST_SUITE_P(
    Formats, ImageDestinationMemory, testing::Values(FileFormat::Gif, FileFormat::Heic)
);

TEST(ImageDestination, WritesOnePageOfThePicturesPoints)
{
    const TemporaryFolder folder;
    const QString source
        = PhotoBuilder().size(300, 150).dotsPerInch(144).write(folder.path(u"a.jpg"_s));
    const QString target = folder.path(u"b.pdf"_s);

    ASSERT_TRUE(encode(*openedPhoto(source).image(), FileFormat::Pdf, {}, target));

    const QByteArray file = TemporaryFolder::read(target);
    EXPECT_TRUE(file.startsWith("%PDF-"));
    EXPECT_TRUE(
        file.contains("/MediaBox [0 0 150.000000 75.000000]")
        || file.contains("/MediaBox [0 0 150 75]")
    );
    EXPECT_EQ(file.count("/Type /Page\n"), 1);
}

class ImageDestinationFault : public testing::TestWithParam<FormatCase>
{
};

TEST_P(ImageDestinationFault, OfADamagedSourceIsReported)
{
    const TemporaryFolder folder;
    const QByteArray whole = PhotoBuilder().size(300, 200).bytes();
    const QString source = folder.write(u"a.jpg"_s, whole.first(whole.size() / 2));

    EXPECT_FALSE(encode(*openedPhoto(source).image(), GetParam().format, {}, folder.path(u"b"_s)));
}

TEST_P(ImageDestinationFault, OfAFolderThatIsMissingIsReported)
{
    const TemporaryFolder folder;
    const QString source = PhotoBuilder().write(folder.path(u"a.jpg"_s));

    EXPECT_FALSE(
        encode(*openedPhoto(source).image(), GetParam().format, {}, folder.path(u"none/b"_s))
    );
}

TEST_P(ImageDestinationFault, OfAFullDiskIsReported)
{
    const TemporaryFolder folder;
    const QString source = PhotoBuilder().size(300, 200).write(folder.path(u"a.jpg"_s));

    EXPECT_FALSE(encode(*openedPhoto(source).image(), GetParam().format, {}, u"/dev/full"_s));
}

INSTANTIATE_TEST_SUITE_P(
    Formats,
    ImageDestinationFault,
    testing::Values(
        FormatCase{"Png", FileFormat::Png},
        FormatCase{"Tiff", FileFormat::Tiff},
        FormatCase{"Bmp", FileFormat::Bmp},
        FormatCase{"Gif", FileFormat::Gif},
        FormatCase{"Jpeg", FileFormat::Jpeg},
        FormatCase{"Jpeg2000", FileFormat::Jpeg2000},
        FormatCase{"Heic", FileFormat::Heic},
        FormatCase{"Pdf", FileFormat::Pdf}
    ),
    CaseName()
);

} // namespace
} // namespace brenvaldo
