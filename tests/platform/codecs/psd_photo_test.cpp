// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/codecs/image_source.h>
#include <platform/foundation/literals.h>

#include <support/case_name.h>
#include <support/color_profiles.h>
#include <support/exif_block.h>
#include <support/log_lines.h>
#include <support/pixel_probe.h>
#include <support/psd_file.h>
#include <support/temporary_folder.h>

#include <gmock/gmock.h>

namespace brenvaldo {
namespace {

using namespace platform;
using namespace platform::graphics;
using namespace platform::codecs;
using namespace test;

QByteArray bytes(std::initializer_list<int> values)
{
    QByteArray result;
    for (const int value : values)
        result.append(static_cast<char>(value));
    return result;
}

QString written(const TemporaryFolder& folder, const QByteArray& file)
{
    const QString path = folder.path(u"layers.psd"_s);
    QFile target(path);
    if (!target.open(QIODevice::WriteOnly) || target.write(file) != file.size())
        qFatal("the file of a test can't be written");
    return path;
}

/// Two by two pixels: red and green above blue and white.
PsdContents fourColors()
{
    return {
        .size = {2, 2},
        .channels = {bytes({255, 0, 0, 255}), bytes({0, 255, 0, 255}), bytes({0, 0, 255, 255})}};
}

QByteArray twoPixelRows(int first, int second) { return bytes({first, first, second, second}); }

struct PsdCase
{
    const char* name;
    PsdContents contents;
    ColorModel model;
    int bits;
    bool hasAlpha;
    QRgb topLeft;
    QRgb bottomRight;

    friend void PrintTo(const PsdCase& row, std::ostream* out) { *out << row.name; }
};

class PsdPhoto : public testing::TestWithParam<PsdCase>
{
};

void expectNear(QColor actual, QColor expected)
{
    constexpr int tolerance = 2; // of colour conversions
    EXPECT_NEAR(actual.red(), expected.red(), tolerance);
    EXPECT_NEAR(actual.green(), expected.green(), tolerance);
    EXPECT_NEAR(actual.blue(), expected.blue(), tolerance);
    EXPECT_NEAR(actual.alpha(), expected.alpha(), tolerance);
}

TEST_P(PsdPhoto, ShowsTheMergedPicture)
{
    const PsdCase& row = GetParam();
    const TemporaryFolder folder;
    for (const bool isLarge : {false, true}) {
        for (const bool isPacked : {false, true}) {
            PsdContents contents = row.contents;
            contents.isLarge = isLarge;
            contents.isPacked = isPacked;
            const QString path = written(folder, psdFile(contents));

            const ImageHeader header = openedPhoto(path).header();
            EXPECT_EQ(header.storedSize, (PixelSize{2, 2}));
            EXPECT_EQ(header.colorModel, row.model);
            EXPECT_EQ(header.bitsPerComponent, row.bits);
            EXPECT_EQ(header.hasAlpha, row.hasAlpha);
            const auto image = openedPhoto(path).image();
            ASSERT_TRUE(image);
            EXPECT_EQ(image->bitsPerComponent(), row.bits);
            const QImage pixels = image->toQImage();
            ASSERT_EQ(pixels.size(), QSize(2, 2));
            expectNear(pixels.pixelColor(0, 0), QColor::fromRgba(row.topLeft));
            expectNear(pixels.pixelColor(1, 1), QColor::fromRgba(row.bottomRight));
        }
    }
}

QByteArray blackGrayPalette()
{
    QByteArray palette(768, '\0');
    palette[5] = char(200); // red of colour 5
    palette[256 + 5] = 100;
    palette[512 + 5] = 50;
    return palette;
}

/// The eight bytes that a row of two deep samples takes.
QByteArray deepRows(int first, int second)
{
    return bytes({first, 0, first, 0, second, 0, second, 0});
}

const PsdCase psdCases[] = {
    {"Rgb", fourColors(), ColorModel::Rgb, 8, false, 0xFFFF0000, 0xFFFFFFFF},
    {"Gray",
     {.size = {2, 2}, .mode = 1, .channels = {twoPixelRows(40, 200)}},
     ColorModel::Gray,
     8,
     false,
     0xFF282828,
     0xFFC8C8C8},
    {"Duotone",
     {.size = {2, 2}, .mode = 8, .channels = {twoPixelRows(40, 200)}},
     ColorModel::Gray,
     8,
     false,
     0xFF282828,
     0xFFC8C8C8},
    {"Bitmap",
     {.size = {2, 2}, .mode = 0, .bitsPerSample = 1, .channels = {bytes({0x80, 0x00})}},
     ColorModel::Gray,
     8,
     false,
     0xFF000000,
     0xFFFFFFFF},
    {"Indexed",
     {.size = {2, 2}, .mode = 2, .channels = {twoPixelRows(5, 0)}, .palette = blackGrayPalette()},
     ColorModel::Rgb,
     8,
     false,
     0xFFC86432,
     0xFF000000},
    {"DeepRgb",
     {.size = {2, 2},
      .bitsPerSample = 16,
      .channels = {deepRows(0x80, 0xFF), deepRows(0x40, 0xFF), deepRows(0x20, 0xFF)}},
     ColorModel::Rgb,
     16,
     false,
     0xFF804020,
     0xFFFFFFFF},
    {"Cmyk", // no ink is stored as 255
     {.size = {2, 2}, .mode = 4, .channels = QList<QByteArray>(4, twoPixelRows(255, 255))},
     ColorModel::Cmyk,
     8,
     false,
     0xFFFFFFFF,
     0xFFFFFFFF},
    {"Lab",
     {.size = {2, 2},
      .mode = 9,
      .channels = {twoPixelRows(255, 0), twoPixelRows(128, 128), twoPixelRows(128, 128)}},
     ColorModel::Rgb,
     8,
     false,
     0xFFFFFFFF,
     0xFF000000},
    {"TransparentOnWhite", // half of red, stored as it looks on white
     {.size = {2, 2},
      .channels
      = {twoPixelRows(255, 255),
         twoPixelRows(127, 255),
         twoPixelRows(127, 255),
         twoPixelRows(128, 0)},
      .layers = -1},
     ColorModel::Rgb,
     8,
     true,
     0x80FF0000,
     0x00000000},
    {"MaskThatIsNoTransparency",
     {.size = {2, 2},
      .channels = fourColors().channels + QList<QByteArray>{twoPixelRows(9, 9)},
      .layers = 1},
     ColorModel::Rgb,
     8,
     false,
     0xFFFF0000,
     0xFFFFFFFF},
};

INSTANTIATE_TEST_SUITE_P(Modes, PsdPhoto, testing::ValuesIn(psdCases), CaseName());

TEST(PsdPhotoHeader, TellsProfileResolutionAndOrientation)
{
    const TemporaryFolder folder;
    PsdContents contents = fourColors();
    contents.resources = psdResource(0x03ED, bytes({0x01, 0x2C, 0x80, 0}) + QByteArray(12, '\0'))
        + psdResource(0x040F, wideProfile()) + psdResource(0x0422, exifBlock({.orientation = 6}));
    const QString path = written(folder, psdFile(contents));

    const ImageHeader header = openedPhoto(path).header();

    EXPECT_EQ(header.typeIdentifier, u"com.adobe.photoshop-image"_s);
    EXPECT_EQ(header.dotsPerInch, 300.5);
    EXPECT_EQ(header.orientation, 6);
    EXPECT_EQ(openedPhoto(path).image()->iccProfile(), wideProfile());
    EXPECT_EQ(openedPhoto(path).image()->dotsPerInch(), 300.5);
}

TEST(PsdPhotoDamage, RefusesEveryTruncatedFile)
{
    const TemporaryFolder folder;
    const LogLines log;
    for (const bool isPacked : {false, true}) {
        PsdContents contents = fourColors();
        contents.isPacked = isPacked;
        const QByteArray whole = psdFile(contents);
        ASSERT_TRUE(ImageSource::open(written(folder, whole)));
        for (qsizetype length = 0; length < whole.size(); ++length)
            EXPECT_FALSE(ImageSource::open(written(folder, whole.first(length)))) << length;
    }
}

TEST(PsdPhotoDamage, FailsAtRunsThatDoNotFitTheirRow)
{
    const TemporaryFolder folder;
    const LogLines log;
    PsdContents contents = fourColors();
    contents.isPacked = true;
    QByteArray file = psdFile(contents);
    file[file.size() - 2] = char(-100); // the last run: 101 times instead of 2
    const QString path = written(folder, file);

    EXPECT_TRUE(storedPixels(path).isNull());
}

TEST(PsdPhotoDamage, RefusesLayersWithoutAMergedPicture)
{
    const TemporaryFolder folder;
    const LogLines log;
    PsdContents contents = fourColors();
    contents.resources = psdResource(0x0421, bytes({0, 0, 0, 1, 0, 0, 0, 0, 0}));

    EXPECT_FALSE(ImageSource::open(written(folder, psdFile(contents))));
    EXPECT_THAT(
        log.lines().join(u'\n').toStdString(), testing::HasSubstr("without a merged picture")
    );
}

struct UnknownCase
{
    const char* name;
    PsdContents contents;

    friend void PrintTo(const UnknownCase& row, std::ostream* out) { *out << row.name; }
};

class PsdPhotoUnknown : public testing::TestWithParam<UnknownCase>
{
};

TEST_P(PsdPhotoUnknown, IsRefused)
{
    const TemporaryFolder folder;
    const LogLines log;

    EXPECT_FALSE(ImageSource::open(written(folder, psdFile(GetParam().contents))));
}

const QList<QByteArray> threeChannels = fourColors().channels;
const UnknownCase unknownCases[] = {
    {"Mode", {.size = {2, 2}, .mode = 7, .channels = threeChannels}},
    {"Depth", {.size = {2, 2}, .bitsPerSample = 32, .channels = threeChannels}},
    {"DepthOfABitmap", {.size = {2, 2}, .mode = 0, .channels = threeChannels}},
    {"DepthOfAPalette",
     {.size = {2, 2}, .mode = 2, .bitsPerSample = 16, .channels = threeChannels}},
    {"Compression", {.size = {2, 2}, .channels = threeChannels, .compression = 2}},
    {"TooFewChannels", {.size = {2, 2}, .channels = {twoPixelRows(0, 0)}}},
    {"MissingPalette", {.size = {2, 2}, .mode = 2, .channels = {twoPixelRows(0, 0)}}},
    {"NoPixels", {.size = {0, 0}, .channels = threeChannels}},
};

INSTANTIATE_TEST_SUITE_P(Kinds, PsdPhotoUnknown, testing::ValuesIn(unknownCases), CaseName());

} // namespace
} // namespace brenvaldo
