// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/containers/bitmap_header.h>

#include <QtEndian>

#include <gtest/gtest.h>

using namespace brenvaldo::platform::containers;

namespace {

/// A header of 40 bytes in front of pixels of 24 bits.
QByteArray bitmapOfResolution(qint32 horizontal, qint32 vertical)
{
    QByteArray file(54, '\0');
    file.replace(0, 2, "BM");
    qToLittleEndian(qint32{54}, file.data() + 10);
    qToLittleEndian(qint32{40}, file.data() + 14);
    qToLittleEndian(qint16{24}, file.data() + 28);
    qToLittleEndian(horizontal, file.data() + 38);
    qToLittleEndian(vertical, file.data() + 42);
    return file;
}

} // namespace

TEST(BitmapHeader, TellsTheResolutionOfBothDirections)
{
    const auto resolution = readBitmapHeader(bitmapOfResolution(11811, 5906)).resolution;

    ASSERT_TRUE(resolution);
    EXPECT_EQ(resolution->horizontal, 300);
    EXPECT_EQ(resolution->vertical, 150);
}

TEST(BitmapHeader, TakesTheResolutionOfOneDirectionForNone)
{
    EXPECT_FALSE(readBitmapHeader(bitmapOfResolution(11811, 0)).resolution);
    EXPECT_FALSE(readBitmapHeader(bitmapOfResolution(0, 11811)).resolution);
    EXPECT_FALSE(readBitmapHeader(bitmapOfResolution(11811, -11811)).resolution);
}

TEST(BitmapHeader, TellsWherePixelsAndColorsStand)
{
    const BitmapHeader header = readBitmapHeader(bitmapOfResolution(0, 0));

    EXPECT_EQ(header.pixelsAt, 54U);
    EXPECT_EQ(header.paletteAt, 54U);
    EXPECT_EQ(header.paletteEntrySize, 4);
    EXPECT_EQ(header.bitsPerPixel, 24);
    EXPECT_FALSE(header.isIndexed());
    EXPECT_EQ(header.profileSize, 0U);
}

TEST(BitmapHeader, HasNarrowFieldsInOldFiles)
{
    QByteArray file(26, '\0');
    qToLittleEndian(qint32{50}, file.data() + 10);
    qToLittleEndian(qint32{12}, file.data() + 14);
    qToLittleEndian(qint16{8}, file.data() + 24);

    const BitmapHeader header = readBitmapHeader(file + QByteArray(30, '\x01'));

    EXPECT_EQ(header.bitsPerPixel, 8);
    EXPECT_TRUE(header.isIndexed());
    EXPECT_EQ(header.paletteAt, 26U);
    EXPECT_EQ(header.paletteEntrySize, 3);
    EXPECT_EQ(header.compression, BitmapCompression::None);
    EXPECT_FALSE(header.resolution);
}

TEST(BitmapHeader, OfNothingIsEmpty)
{
    EXPECT_EQ(readBitmapHeader({}).bitsPerPixel, 0);
    EXPECT_FALSE(readBitmapHeader({}).isIndexed());
}
