// SPDX-License-Identifier: GPL-3.0-or-later
#include "jpeg_of_scans.h"

#include <platform/codecs/image_destination.h>
#include <platform/codecs/image_source.h>
#include <platform/foundation/literals.h>

#include <support/case_name.h>
#include <support/photo_builder.h>
#include <support/temporary_folder.h>

#include <QtEndian>

#include <gtest/gtest.h>

namespace brenvaldo {
namespace {

using namespace platform::containers;
using namespace platform::codecs;
using namespace test;

constexpr int width = 19; // more than a tile, and odd
constexpr int height = 17;
constexpr int tileSide = 16;

enum Tag : quint16 {
    ImageWidth = 256,
    ImageLength = 257,
    BitsPerSample = 258,
    Compression = 259,
    Photometric = 262,
    StripOffsets = 273,
    Orientation = 274,
    SamplesPerPixel = 277,
    RowsPerStrip = 278,
    StripByteCounts = 279,
    PlanarConfiguration = 284,
    TileWidth = 322,
    TileLength = 323,
    TileOffsets = 324,
    TileByteCounts = 325,
    JpegProcess = 512,
    JpegInterchangeFormat = 513,
    JpegInterchangeFormatLength = 514,
    ChromaSubsampling = 530
};

struct Entry
{
    quint16 tag = 0;
    QList<quint32> values;
};

template <typename Number>
QByteArray littleEndian(Number number)
{
    QByteArray bytes(sizeof(number), '\0');
    qToLittleEndian(number, bytes.data());
    return bytes;
}

/// A TIFF whose directory stands behind the `data` at offset 8; all values are LONGs, entries go by
/// tag.
QByteArray tiffOf(const QByteArray& data, const QList<Entry>& entries)
{
    const QByteArray body = data + QByteArray(data.size() % 2, '\0');
    const auto directoryAt = static_cast<quint32>(8 + body.size());
    auto valuesAt = directoryAt + 2 + 12 * static_cast<quint32>(entries.size()) + 4;
    QByteArray directory = littleEndian(static_cast<quint16>(entries.size()));
    QByteArray values;
    for (const Entry& entry : entries) {
        QByteArray bytes;
        for (const quint32 value : entry.values)
            bytes += littleEndian(value);
        directory += littleEndian(entry.tag) + littleEndian<quint16>(4)
            + littleEndian(static_cast<quint32>(entry.values.size()));
        if (bytes.size() == 4) {
            directory += bytes;
            continue;
        }
        directory += littleEndian(valuesAt + static_cast<quint32>(values.size()));
        values += bytes;
    }
    return QByteArray("II*\0", 4) + littleEndian(directoryAt) + body + directory
        + littleEndian<quint32>(0) + values;
}

/// The sample of band `band` at a place, from 0 to 255.
quint32 sampleAt(int x, int y, int band)
{
    return static_cast<quint32>((x * 11 + y * 7 + band * 80) % 256);
}

QByteArray separateTiles(int bits)
{
    QByteArray data;
    QList<quint32> offsets;
    QList<quint32> lengths;
    for (int band = 0; band < 3; ++band) {
        for (int top = 0; top < height; top += tileSide) {
            for (int left = 0; left < width; left += tileSide) {
                offsets.append(static_cast<quint32>(8 + data.size()));
                lengths.append(static_cast<quint32>(tileSide * tileSide * bits / 8));
                for (int i = 0; i < tileSide * tileSide; ++i) {
                    const quint32 sample = sampleAt(left + i % tileSide, top + i / tileSide, band);
                    data += bits == 8 ? littleEndian(static_cast<quint8>(sample))
                                      : littleEndian(static_cast<quint16>(sample * 257));
                }
            }
        }
    }
    const auto depth = static_cast<quint32>(bits);
    return tiffOf(
        data,
        {{ImageWidth, {width}},
         {ImageLength, {height}},
         {BitsPerSample, {depth, depth, depth}},
         {Compression, {1}},
         {Photometric, {2}},
         {Orientation, {6}},
         {SamplesPerPixel, {3}},
         {PlanarConfiguration, {2}},
         {TileWidth, {tileSide}},
         {TileLength, {tileSide}},
         {TileOffsets, offsets},
         {TileByteCounts, lengths}}
    );
}

/// Samples of twelve bits are those of eight, with the upper four once more below.
QByteArray twelveBits()
{
    QByteArray data;
    for (int y = 0; y < height; ++y) {
        QByteArray digits;
        for (int x = 0; x < width; ++x) {
            for (int band = 0; band < 3; ++band) {
                const quint32 sample = sampleAt(x, y, band);
                const quint32 wide = (sample << 4U) | (sample >> 4U);
                digits += QByteArray::number(wide, 16).rightJustified(3, '0');
            }
        }
        data += QByteArray::fromHex(digits + QByteArray(digits.size() % 2, '0'));
    }
    return tiffOf(
        data,
        {{ImageWidth, {width}},
         {ImageLength, {height}},
         {BitsPerSample, {12, 12, 12}},
         {Compression, {1}},
         {Photometric, {2}},
         {StripOffsets, {8}},
         {Orientation, {6}},
         {SamplesPerPixel, {3}},
         {RowsPerStrip, {height}},
         {StripByteCounts, {static_cast<quint32>(data.size())}},
         {PlanarConfiguration, {1}}}
    );
}

QByteArray oldJpeg()
{
    const QByteArray jpeg = PhotoBuilder().size(32, 16).solid({200, 100, 50}).bytes();
    const auto length = static_cast<quint32>(jpeg.size());
    return tiffOf(
        jpeg,
        {{ImageWidth, {32}},
         {ImageLength, {16}},
         {BitsPerSample, {8, 8, 8}},
         {Compression, {6}},
         {Photometric, {6}},
         {StripOffsets, {8}},
         {SamplesPerPixel, {3}},
         {RowsPerStrip, {16}},
         {StripByteCounts, {length}},
         {PlanarConfiguration, {1}},
         {JpegProcess, {1}},
         {JpegInterchangeFormat, {8}},
         {JpegInterchangeFormatLength, {length}}}
    );
}

QByteArray jpegStrip() { return PhotoBuilder().size(64, 48).bytes(); }

QByteArray tiffOfJpeg(const QByteArray& strip)
{
    return tiffOf(
        strip,
        {{ImageWidth, {64}},
         {ImageLength, {48}},
         {BitsPerSample, {8, 8, 8}},
         {Compression, {7}},
         {Photometric, {6}},
         {StripOffsets, {8}},
         {SamplesPerPixel, {3}},
         {RowsPerStrip, {48}},
         {StripByteCounts, {static_cast<quint32>(strip.size())}},
         {PlanarConfiguration, {1}},
         {ChromaSubsampling, {1, 1}}}
    );
}

const QByteArray endOfJpeg("\xff\xd9", 2);

/// Eight rows of eight pixels; a bit that is set is a white row more.
QByteArray tiffOfFax(const QByteArray& strip)
{
    return tiffOf(
        strip,
        {{ImageWidth, {8}},
         {ImageLength, {8}},
         {BitsPerSample, {1}},
         {Compression, {4}},
         {Photometric, {0}},
         {StripOffsets, {8}},
         {SamplesPerPixel, {1}},
         {RowsPerStrip, {8}},
         {StripByteCounts, {static_cast<quint32>(strip.size())}}}
    );
}

const QByteArray endOfFax("\x00\x10\x01", 3);

bool isWritten(const QByteArray& file)
{
    const TemporaryFolder folder;
    const auto source = ImageSource::open(folder.write(u"photo.tif"_s, file));
    const auto image = source ? source->image() : std::nullopt;
    return image && encode(*image, FileFormat::Png, {}, folder.path(u"out.png"_s));
}

struct StorageCase
{
    const char* name;
    QByteArray file;

    friend void PrintTo(const StorageCase& row, std::ostream* out) { *out << row.name; }
};

} // namespace

class UnusualTiff : public testing::TestWithParam<StorageCase>
{
};

TEST_P(UnusualTiff, IsNoPhotoRatherThanAWrongOne) { EXPECT_FALSE(isWritten(GetParam().file)); }

INSTANTIATE_TEST_SUITE_P(
    Storages,
    UnusualTiff,
    testing::Values(
        StorageCase{"SeparateTiles", separateTiles(8)},
        StorageCase{"SeparateTilesOfSixteenBits", separateTiles(16)},
        StorageCase{"TwelveBits", twelveBits()},
        StorageCase{"OldJpeg", oldJpeg()}
    ),
    CaseName{}
);

// The decoder only warns of these.

TEST(TiffOfJpeg, FailsWhenItsScanEndsEarly)
{
    const QByteArray strip = jpegStrip();
    const QByteArray cut = strip.first(strip.size() * 6 / 10);

    EXPECT_TRUE(isWritten(tiffOfJpeg(strip)));
    EXPECT_FALSE(isWritten(tiffOfJpeg(cut + endOfJpeg)));
    EXPECT_FALSE(isWritten(tiffOfJpeg(cut)));
}

TEST(TiffOfJpeg, FailsWhenAnIntervalIsMissing)
{
    const QByteArray strip = jpegOf({.restartBlocks = 4});
    const qsizetype second = strip.indexOf("\xff\xd1");
    const qsizetype third = strip.indexOf("\xff\xd2");
    QByteArray shorter = strip;

    shorter.remove(second, third - second);

    EXPECT_TRUE(isWritten(tiffOfJpeg(strip)));
    EXPECT_FALSE(isWritten(tiffOfJpeg(shorter)));
}

TEST(TiffOfFax, FailsWhenRowsAreMissing)
{
    EXPECT_TRUE(isWritten(tiffOfFax("\xff" + endOfFax)));
    EXPECT_FALSE(isWritten(tiffOfFax("\xf0" + endOfFax)));
}

} // namespace brenvaldo
