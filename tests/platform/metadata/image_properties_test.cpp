// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/metadata/exif_root_fields.h>
#include <platform/metadata/image_properties.h>
#include <platform/metadata/tiff_blocks.h>
#include <support/exif_block.h>
#include <support/iptc_block.h>
#include <support/photo_builder.h>
#include <support/pixel_probe.h>
#include <support/temporary_folder.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace brenvaldo::platform::containers;
using namespace brenvaldo::platform::metadata;
using namespace brenvaldo::test;

namespace {

PropertyDictionary propertiesOf(const PhotoBuilder& photo)
{
    const TemporaryFolder folder;
    return imageProperties(photo.write(folder.path(u"photo"_s))).value_or(PropertyDictionary());
}

std::optional<QString>
nested(const PropertyDictionary& properties, QLatin1StringView dictionary, const QString& key)
{
    const PropertyDictionary* found = properties.dictionary(dictionary);
    return found ? found->text(key) : std::nullopt;
}

} // namespace

TEST(ImageProperties, TellTheStoredSizeAndTheColors)
{
    const PropertyDictionary properties = propertiesOf(PhotoBuilder{}.size(61, 23).orientation(6));

    EXPECT_EQ(properties.text(property::pixelWidth), u"61"_s);
    EXPECT_EQ(properties.text(property::pixelHeight), u"23"_s);
    EXPECT_EQ(properties.text(property::depth), u"8"_s);
    EXPECT_EQ(properties.text(property::colorModel), u"RGB"_s);
    EXPECT_EQ(properties.text(property::orientation), u"6"_s);
}

TEST(ImageProperties, ShowAlphaOnlyWhereThereIsSome)
{
    const PhotoBuilder png = PhotoBuilder{}.format(PhotoFormat::Png);

    EXPECT_EQ(propertiesOf(png).text(property::hasAlpha), std::nullopt);
    EXPECT_EQ(
        propertiesOf(PhotoBuilder(png).model(PhotoModel::RgbAlpha)).text(property::hasAlpha), u"1"_s
    );
}

TEST(ImageProperties, ShowTheIptcOfAHeic)
{
    TiffDirectory fields;
    setBlock(fields, tiff::Iptc, iptcDataSet(105, "A headline"));
    const QByteArray exif = withRootFields(exifBlock({.make = "Brand"}), fields);

    const PropertyDictionary properties
        = propertiesOf(PhotoBuilder{}.format(PhotoFormat::Heic).exif(exif));

    EXPECT_EQ(nested(properties, property::iptcDictionary, u"Headline"_s), u"A headline"_s);
    EXPECT_EQ(nested(properties, property::tiffDictionary, u"Make"_s), u"Brand"_s);
}

TEST(ImageProperties, ShowAResolutionOnlyWhereTheFileStatesOne)
{
    for (const PhotoFormat format : {PhotoFormat::Jpeg, PhotoFormat::Png, PhotoFormat::Bmp}) {
        const PropertyDictionary stated
            = propertiesOf(PhotoBuilder{}.format(format).dotsPerInch(144));

        EXPECT_EQ(stated.text(property::dpiHeight), u"144"_s);
    }
    EXPECT_EQ(
        propertiesOf(PhotoBuilder{}.format(PhotoFormat::Gif)).text(property::dpiHeight),
        std::nullopt
    );
}

TEST(ImageProperties, AgreeWithThePictureAboutABitmapOfOneResolution)
{
    const TemporaryFolder folder;
    QByteArray bitmap = PhotoBuilder{}.format(PhotoFormat::Bmp).bytes();
    bitmap.replace(38, 8, QByteArray("\x23\x2E\0\0\0\0\0\0", 8)); // 11811 and 0 pixels a metre
    const QString path = folder.write(u"photo.bmp"_s, bitmap);

    const auto properties = imageProperties(path);

    ASSERT_TRUE(properties);
    EXPECT_EQ(properties->text(property::dpiWidth), std::nullopt);
    EXPECT_EQ(properties->text(property::dpiHeight), std::nullopt);
    EXPECT_EQ(openedPhoto(path).header().dotsPerInch, 72);
}

TEST(ImageProperties, AgreeWithThePictureAboutAnOddOrientation)
{
    const QByteArray undefinedSix("\x12\x01\x07\0\x01\0\0\0\x06\0\0\0", 12);
    const QByteArray shortNine("\x12\x01\x03\0\x01\0\0\0\x09\0\0\0", 12);
    for (const PhotoFormat format : {PhotoFormat::Jpeg, PhotoFormat::Png}) {
        const TemporaryFolder folder;
        const auto photoWith = [&](const QByteArray& field) {
            const QByteArray exif
                = QByteArray("II*\0\x08\0\0\0\x01\0", 10) + field + QByteArray(4, '\0');
            return PhotoBuilder{}.size(60, 40).format(format).exif(exif).write(
                folder.path(u"photo"_s)
            );
        };

        const QString turned = photoWith(undefinedSix);
        EXPECT_EQ(
            openedPhoto(turned).header().uprightSize,
            (brenvaldo::platform::graphics::PixelSize{40, 60})
        );
        EXPECT_EQ(imageProperties(turned)->text(property::orientation), u"6"_s);

        const QString odd = photoWith(shortNine);
        EXPECT_EQ(
            openedPhoto(odd).header().uprightSize,
            (brenvaldo::platform::graphics::PixelSize{60, 40})
        );
        EXPECT_EQ(imageProperties(odd)->text(property::orientation), std::nullopt);
    }
}

TEST(ImageProperties, PreferTheResolutionOfExifToThatOfJfif)
{
    const PropertyDictionary properties
        = propertiesOf(PhotoBuilder{}.dotsPerInch(144).exif(exifBlock({.dotsPerInch = 300})));

    EXPECT_EQ(properties.text(property::dpiWidth), u"300"_s);
}

TEST(ImageProperties, HaveNoMetadataDictionariesWithoutMetadata)
{
    const PropertyDictionary properties = propertiesOf(PhotoBuilder{}.format(PhotoFormat::Bmp));

    EXPECT_FALSE(properties.contains(property::exifDictionary));
    EXPECT_FALSE(properties.contains(property::iptcDictionary));
    EXPECT_FALSE(properties.contains(property::gpsDictionary));
}

TEST(ImageProperties, GatherExifAndIptc)
{
    const PropertyDictionary properties = propertiesOf(
        PhotoBuilder{}
            .exif(exifBlock({.make = "Brand", .dateTimeOriginal = "2026:11:15 10:44:33"}))
            .jpegSegment('\xED', iptcSegmentContents(iptcDataSet(120, "caption")))
    );

    EXPECT_EQ(
        nested(properties, property::exifDictionary, property::exifDateTimeOriginal),
        u"2026:11:15 10:44:33"_s
    );
    EXPECT_EQ(nested(properties, property::tiffDictionary, u"Make"_s), u"Brand"_s);
    EXPECT_EQ(
        nested(properties, property::iptcDictionary, property::iptcCaptionAbstract), u"caption"_s
    );
    EXPECT_EQ(
        nested(properties, property::iptcDictionary, property::iptcDateCreated), u"20261115"_s
    );
}

TEST(ImageProperties, TellWhatAProgressiveJpegIs)
{
    const PropertyDictionary properties
        = propertiesOf(PhotoBuilder{}.format(PhotoFormat::ProgressiveJpeg));

    EXPECT_EQ(nested(properties, property::jfifDictionary, u"IsProgressive"_s), u"1"_s);
}

TEST(ImageProperties, TellPngAndGifFromTheirStructure)
{
    const PropertyDictionary png
        = propertiesOf(PhotoBuilder{}.format(PhotoFormat::Png).dotsPerInch(144));
    const PropertyDictionary gif = propertiesOf(PhotoBuilder{}.format(PhotoFormat::Gif));

    EXPECT_EQ(nested(png, property::pngDictionary, u"InterlaceType"_s), u"0"_s);
    EXPECT_EQ(nested(png, property::pngDictionary, u"XPixelsPerMeter"_s), u"5669"_s);
    EXPECT_EQ(nested(gif, property::gifDictionary, u"CanvasPixelWidth"_s), u"47"_s);
    EXPECT_EQ(gif.text(property::isIndexed), u"1"_s);
}

TEST(ImageProperties, TakeTheCommentOfAGifForNothingElse)
{
    const TemporaryFolder folder;
    QByteArray gif = PhotoBuilder{}.format(PhotoFormat::Gif).bytes();
    const QByteArray comment(
        "\x21\xFE\x1B\x21\xFF\x0BNETSCAPE2.0\x03\x01\x05\0\0\x21\xF9\x04\0\x32\0\0\0", 31
    );
    const QByteArray loop("\x21\xFF\x0BNETSCAPE2.0\x03\x01\0\0\0", 19);
    const QByteArray control("\x21\xF9\x04\0\x0A\0\0\0", 8);
    const qsizetype blocks = 13 + (3 << ((gif[10] & 7) + 1));
    gif.insert(blocks, comment + loop + control);

    const auto properties = imageProperties(folder.write(u"photo.gif"_s, gif));

    ASSERT_TRUE(properties);
    EXPECT_EQ(nested(*properties, property::gifDictionary, u"LoopCount"_s), u"0"_s);
    EXPECT_EQ(nested(*properties, property::gifDictionary, u"DelayTime"_s), u"0.1"_s);
}

TEST(ImageProperties, ReadAHeicWithItsExif)
{
    const PropertyDictionary properties
        = propertiesOf(PhotoBuilder{}
                           .size(64, 48)
                           .format(PhotoFormat::Heic)
                           .exif(exifBlock({.make = "Brand", .dotsPerInch = 300})));

    EXPECT_EQ(properties.text(property::pixelWidth), u"64"_s);
    EXPECT_EQ(properties.text(property::dpiWidth), u"300"_s);
    EXPECT_EQ(nested(properties, property::tiffDictionary, u"Make"_s), u"Brand"_s);
}

TEST(ImageProperties, AreNothingForAFileThatIsNoImage)
{
    const TemporaryFolder folder;

    EXPECT_FALSE(imageProperties(folder.write(u"a.jpg"_s, "no image")).has_value());
    EXPECT_FALSE(imageProperties(folder.path(u"missing.jpg"_s)).has_value());
}
