// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/containers/exif_facts.h>
#include <platform/containers/tiff_directory.h>

#include <support/exif_block.h>

#include <gtest/gtest.h>

using namespace brenvaldo::platform::containers;
using brenvaldo::test::exifBlock;

namespace {

/// A block with one field.
QByteArray blockOf(const TiffField& field)
{
    return tiffHeader(ByteOrder::Little, tiffHeaderLength)
        + serializedDirectory({field}, tiffHeaderLength, ByteOrder::Little);
}

TiffField orientationOf(std::uint16_t type, const QByteArray& value)
{
    return {.tag = 0x0112, .type = type, .value = value};
}

} // namespace

TEST(ExifFacts, AreThoseOfACamera)
{
    const ExifFacts facts
        = readExifFacts(exifBlock({.orientation = 6, .thumbnail = "jpeg", .dotsPerInch = 300}));

    EXPECT_EQ(facts.orientation, 6);
    EXPECT_EQ(facts.dotsPerInch, 300);
    EXPECT_EQ(facts.thumbnail, "jpeg");
}

TEST(ExifFacts, TakeAnOrientationOfAnyNumberType)
{
    constexpr std::uint16_t byte = 1;
    constexpr std::uint16_t longNumber = 4;
    constexpr std::uint16_t signedShort = 8;

    EXPECT_EQ(readExifFacts(blockOf(orientationOf(byte, "\x06"))).orientation, 6);
    EXPECT_EQ(
        readExifFacts(blockOf(orientationOf(longNumber, QByteArray("\x06\0\0\0", 4)))).orientation,
        6
    );
    EXPECT_EQ(
        readExifFacts(blockOf(orientationOf(signedShort, QByteArray("\x06\0", 2)))).orientation, 6
    );
}

TEST(ExifFacts, TakeAnUnknownOrientationAsUpright)
{
    constexpr std::uint16_t ascii = 2;
    constexpr std::uint16_t shortNumber = 3;

    EXPECT_EQ(readExifFacts({}).orientation, 1);
    EXPECT_EQ(
        readExifFacts(blockOf(orientationOf(shortNumber, QByteArray("\x09\0", 2)))).orientation, 1
    );
    EXPECT_EQ(readExifFacts(blockOf(orientationOf(ascii, "\x06"))).orientation, 1);
}

TEST(ExifFacts, AreNoneInABlockOfAnUnknownVersion)
{
    QByteArray block = exifBlock({.orientation = 6});
    block[2] = '\x07';

    EXPECT_EQ(readExifFacts(block).orientation, 1);
}

TEST(ExifFacts, TakeAResolutionThatIsAWholeNumber)
{
    constexpr std::uint16_t shortNumber = 3;
    const TiffField resolution{
        .tag = 0x011A, .type = shortNumber, .value = QByteArray("\x2C\x01", 2)};

    EXPECT_EQ(readExifFacts(blockOf(resolution)).dotsPerInch, 300);
}

TEST(ExifFacts, StateAResolutionAndNothingElse)
{
    const ExifFacts facts = readExifFacts(exifOfResolution(72.5));

    EXPECT_EQ(facts.dotsPerInch, 72.5);
    EXPECT_EQ(facts.orientation, 1);
    EXPECT_TRUE(facts.thumbnail.isEmpty());
}
