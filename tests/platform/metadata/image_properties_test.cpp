// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/metadata/exif_root_fields.h>
#include <platform/metadata/image_properties.h>
#include <platform/metadata/tiff_blocks.h>
#include <support/exif_block.h>
#include <support/iptc_block.h>
#include <support/photo_builder.h>
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
