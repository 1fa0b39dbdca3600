// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/graphics/image_destination.h>

#include <support/case_name.h>
#include <support/photo_builder.h>
#include <support/pixel_probe.h>
#include <support/temporary_folder.h>

#include <gmock/gmock.h>

namespace brenvaldo {
namespace {

using namespace platform;
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
                               .write(folder.path(QStringLiteral("source.tiff")));
    const QString target = folder.path(QStringLiteral("target"));

    const bool done
        = encode(*openedPhoto(source).image(), row.format, {.lossyQuality = 1.0}, target);

    ASSERT_TRUE(done);
    const ImageHeader header = openedPhoto(target).header();
    EXPECT_EQ(header.storedSize, (PixelSize{47, 33}));
    EXPECT_EQ(header.colorModel, row.expectedModel);
    EXPECT_EQ(header.bitsPerComponent, row.expectedDepth);
    EXPECT_EQ(header.hasAlpha, row.expectedAlpha);
    EXPECT_NEAR(header.dotsPerInch, 144, 0.5);
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
            "TiffCmyk", FileFormat::Tiff, PhotoModel::Cmyk, 8, 0, ColorModel::Cmyk, 8, false}
    ),
    CaseName()
);

} // namespace
} // namespace brenvaldo
