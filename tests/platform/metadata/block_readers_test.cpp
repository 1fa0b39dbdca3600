// SPDX-License-Identifier: GPL-3.0-or-later
#include "block_builder.h"
#include "container_builder.h"

#include <platform/containers/inflate.h>
#include <platform/containers/jpeg_segments.h>
#include <platform/containers/png_chunks.h>
#include <platform/metadata/block_readers.h>
#include <platform/metadata/exif_directories.h>
#include <support/case_name.h>
#include <support/exif_block.h>
#include <support/iptc_block.h>

#include <gtest/gtest.h>

using namespace brenvaldo::platform::containers;
using namespace brenvaldo::platform::metadata;
using namespace brenvaldo::test;

namespace {

QByteArray exifSegment(const QByteArray& data)
{
    return brenvaldo::platform::containers::jpegSegment(
        jpeg::app1, jpeg::exifHeader.toByteArray() + data
    );
}

QByteArray segment(std::uint8_t marker, const QByteArray& payload)
{
    return brenvaldo::platform::containers::jpegSegment(marker, payload);
}

QByteArray smallExif() { return exifBlock({.orientation = 3, .make = "Brand"}); }

/// A TIFF of one pixel with EXIF, XMP and IPTC.
QByteArray tiffWithMetadata()
{
    constexpr std::uint64_t directoryAt = 8;
    constexpr std::uint16_t width = 256;
    constexpr std::uint16_t make = 271;
    const TiffDirectory exif{{.tag = 0x9000, .type = tiff::Undefined, .value = "0230"}};
    TiffDirectory image{
        longField(width, 1, ByteOrder::Little),
        {.tag = make, .type = 2, .value = QByteArray("Brand\0", 6)},
        {.tag = tiff::Xmp, .type = tiff::Byte, .value = xmpPacket("A title")},
        {.tag = tiff::Iptc, .type = tiff::Long, .value = iptcDataSet(120, "abc")},
        longField(tiff::ExifDirectory, 0, ByteOrder::Little)};
    const auto exifAt = directoryAt
        + static_cast<std::uint64_t>(serializedDirectory(image, 0, ByteOrder::Little).size());
    image.last() = longField(tiff::ExifDirectory, exifAt, ByteOrder::Little);
    return tiffHeader(ByteOrder::Little, directoryAt)
        + serializedDirectory(image, directoryAt, ByteOrder::Little)
        + serializedDirectory(exif, exifAt, ByteOrder::Little);
}

} // namespace

TEST(ReadJpegBlocks, SortsTheSegmentsIntoBlocks)
{
    const QByteArray iptc = iptcDataSet(120, "caption");

    const MetadataBlocks blocks = readJpegBlocks(bareJpeg(
        {exifSegment(smallExif()),
         segment(jpeg::app1, jpeg::xmpHeader.toByteArray() + xmpPacket("A title")),
         segment(jpeg::app13, iptcSegmentContents(iptc)),
         segment(jpeg::comment, "a comment"),
         segment(0xE2, QByteArray("FPXR\0 flash", 11))}
    ));

    EXPECT_EQ(blocks.exif, smallExif());
    EXPECT_EQ(blocks.xmp, xmpPacket("A title"));
    EXPECT_EQ(blocks.iptc, iptc);
    EXPECT_EQ(blocks.photoshop, photoshopResource(0x0404, iptc));
    EXPECT_EQ(blocks.comment, "a comment");
    EXPECT_EQ(blocks.jpegSegments, QByteArrayList({segment(0xE2, QByteArray("FPXR\0 flash", 11))}));
}

TEST(ReadJpegBlocks, LeavesOutWhatBelongsToTheCoding)
{
    const MetadataBlocks blocks = readJpegBlocks(bareJpeg(
        {segment(jpeg::app0, QByteArray("JFIF\0\x01\x01\0\0\x48\0\x48\0\0", 14)),
         segment(jpeg::app0, QByteArray("JFXX\0\x10", 6)),
         segment(jpeg::app2, QByteArray("ICC_PROFILE\0\x01\x01profile", 21)),
         segment(jpeg::app2, QByteArray("MPF\0index", 9)),
         segment(jpeg::app14, QByteArray("Adobe\0d\0\0\0\0\0", 12))}
    ));

    EXPECT_TRUE(blocks.jpegSegments.isEmpty());
}

TEST(ReadJpegBlocks, JoinsABlockThatTakesSeveralSegments)
{
    const QByteArray rest = "what does not start as a block of its own";

    const MetadataBlocks blocks
        = readJpegBlocks(bareJpeg({exifSegment(smallExif()), exifSegment(rest)}));

    EXPECT_EQ(blocks.exif, smallExif() + rest);
}

TEST(ReadJpegBlocks, KeepsASecondBlockAsItStands)
{
    const QByteArray second = exifSegment(exifBlock({.make = "Other"}));

    const MetadataBlocks blocks = readJpegBlocks(bareJpeg({exifSegment(smallExif()), second}));

    EXPECT_EQ(blocks.exif, smallExif());
    EXPECT_EQ(blocks.jpegSegments, QByteArrayList({second}));
}

TEST(ReadJpegBlocks, JoinsPhotoshopResourcesOverSeveralSegments)
{
    const QByteArray resources = photoshopResource(0x0425, QByteArray(64, 'd'))
        + photoshopResource(0x0404, iptcDataSet(5, "t"));
    const QByteArray header = jpeg::photoshopHeader.toByteArray();

    const MetadataBlocks blocks = readJpegBlocks(bareJpeg(
        {segment(jpeg::app13, header + resources.first(30)),
         segment(jpeg::app13, header + resources.sliced(30))}
    ));

    EXPECT_EQ(blocks.photoshop, resources);
    EXPECT_EQ(blocks.iptc, iptcDataSet(5, "t"));
}

TEST(ReadJpegBlocks, PassesFillBytesAndStopsAtADamagedLength)
{
    const QByteArray file = QByteArray("\xFF\xD8\xFF\xFF\xFF", 5)
        + segment(jpeg::comment, "first").sliced(1) + QByteArray("\xFF\xE1\xFF\xFFtoo short", 13);

    const MetadataBlocks blocks = readJpegBlocks(file);

    EXPECT_EQ(blocks.comment, "first");
    EXPECT_TRUE(blocks.jpegSegments.isEmpty());
}

TEST(ReadPngBlocks, ReadsTheChunksAndKeepsTheTexts)
{
    const QByteArray title = pngChunk("tEXt", QByteArray("Title\0A title", 13));
    const QByteArray comment = pngChunk("tEXt", QByteArray("Comment\0caf\xE9", 12));

    const MetadataBlocks blocks = readPngBlocks(barePng(
        {pngChunk("eXIf", smallExif()),
         pngInternationalText("XML:com.adobe.xmp", xmpPacket("A title")),
         title,
         comment}
    ));

    EXPECT_EQ(blocks.exif, smallExif());
    EXPECT_EQ(blocks.xmp, xmpPacket("A title"));
    EXPECT_EQ(blocks.comment, "caf\xC3\xA9");
    EXPECT_EQ(blocks.pngTextChunks, QByteArrayList({title, comment}));
}

TEST(ReadPngBlocks, ReadsRawProfiles)
{
    const QByteArray resources = photoshopResource(0x0404, iptcDataSet(120, "caption"));

    const MetadataBlocks blocks = readPngBlocks(barePng(
        {rawProfileChunk("exif", jpeg::exifHeader.toByteArray() + smallExif()),
         rawProfileChunk("xmp", xmpPacket("A title")),
         rawProfileChunk("iptc", resources)}
    ));

    EXPECT_EQ(blocks.exif, smallExif());
    EXPECT_EQ(blocks.xmp, xmpPacket("A title"));
    EXPECT_EQ(blocks.photoshop, resources);
    EXPECT_EQ(blocks.iptc, iptcDataSet(120, "caption"));
    EXPECT_TRUE(blocks.pngTextChunks.isEmpty());
}

TEST(ReadPngBlocks, LeavesOutATextThatInflatesToAnAbsurdSize)
{
    const QByteArray bomb = deflated(QByteArray(100 * 1024 * 1024, 'x'));

    const MetadataBlocks blocks
        = readPngBlocks(barePng({pngChunk("zTXt", QByteArray("Comment\0\0", 9) + bomb)}));

    EXPECT_TRUE(blocks.comment.isEmpty());
}

TEST(ReadTiffBlocks, TakesTheTagsThatDoNotDescribeTheStorage)
{
    const MetadataBlocks blocks = readTiffBlocks(tiffWithMetadata());

    const auto exif = TiffFile::open(blocks.exif);
    ASSERT_TRUE(exif.has_value());
    const TiffDirectory image = exif->firstDirectory();
    EXPECT_EQ(fieldOf(image, 256), nullptr);
    EXPECT_EQ(fieldOf(image, 271)->value, QByteArray("Brand\0", 6));
    EXPECT_EQ(exif->subDirectory(image, tiff::ExifDirectory).size(), 1);
    EXPECT_EQ(blocks.xmp, xmpPacket("A title"));
    EXPECT_EQ(blocks.iptc, iptcDataSet(120, "abc"));
}

TEST(ReadHeifBlocks, FollowsTheItemsToTheirBytes)
{
    const MetadataBlocks blocks = readHeifBlocks(bareHeif(smallExif(), xmpPacket("A title")));

    EXPECT_EQ(blocks.exif, smallExif());
    EXPECT_EQ(blocks.xmp, xmpPacket("A title"));
}

TEST(ReadJpeg2000Blocks, ReadsTheBoxesByTheirIdentifiers)
{
    const MetadataBlocks blocks = readJpeg2000Blocks(bareJpeg2000(
        {isoBox("uuid", "JpgTiffExif->JP2" + smallExif()),
         isoBox(
             "uuid", QByteArray::fromHex("be7acfcb97a942e89c71999491e3afac") + xmpPacket("A title")
         ),
         isoBox(
             "uuid",
             QByteArray::fromHex("33c7a4d2b81d4723a0baf1a3e097ad38") + iptcDataSet(120, "caption")
         )}
    ));

    EXPECT_EQ(blocks.exif, smallExif());
    EXPECT_EQ(blocks.xmp, xmpPacket("A title"));
    EXPECT_EQ(blocks.iptc, iptcDataSet(120, "caption"));
}

TEST(ReadJpegXlBlocks, ReadsExifAndXmp)
{
    const MetadataBlocks blocks = readJpegXlBlocks(bareJpegXl(smallExif(), xmpPacket("A title")));

    EXPECT_EQ(blocks.exif, smallExif());
    EXPECT_EQ(blocks.xmp, xmpPacket("A title"));
}

TEST(ReadWebpBlocks, ReadsExifWithAndWithoutItsHeader)
{
    const QByteArray withHeader = jpeg::exifHeader.toByteArray() + smallExif();

    EXPECT_EQ(readWebpBlocks(bareWebp(withHeader, {})).exif, smallExif());
    EXPECT_EQ(readWebpBlocks(bareWebp(smallExif(), xmpPacket("A"))).exif, smallExif());
    EXPECT_EQ(readWebpBlocks(bareWebp(smallExif(), xmpPacket("A"))).xmp, xmpPacket("A"));
}

TEST(ReadGifBlocks, ReadsTheCommentAndXmp)
{
    const QByteArray longComment(700, 'c');

    const MetadataBlocks blocks = readGifBlocks(bareGif(longComment, xmpPacket("A title")));

    EXPECT_EQ(blocks.comment, longComment);
    EXPECT_EQ(blocks.xmp, xmpPacket("A title"));
}

TEST(ReadPsdBlocks, PartsTheResourcesFromTheBlocksAmongThem)
{
    const QByteArray iptc = photoshopResource(0x0404, iptcDataSet(120, "caption"));

    const MetadataBlocks blocks = readPsdBlocks(barePsd(
        iptc + photoshopResource(0x0422, smallExif())
        + photoshopResource(0x0424, xmpPacket("A title")) + photoshopResource(0x040F, "profile")
    ));

    EXPECT_EQ(blocks.photoshop, iptc);
    EXPECT_EQ(blocks.exif, smallExif());
    EXPECT_EQ(blocks.xmp, xmpPacket("A title"));
    EXPECT_EQ(blocks.iptc, iptcDataSet(120, "caption"));
}

struct DamageCase
{
    const char* name;
    MetadataBlocks (*read)(QByteArrayView);
    QByteArray file;

    friend void PrintTo(const DamageCase& row, std::ostream* out) { *out << row.name; }
};

class DamagedFile : public testing::TestWithParam<DamageCase>
{
};

TEST_P(DamagedFile, IsReadAsFarAsItGoesWhereverItIsCut)
{
    const QByteArray& file = GetParam().file;
    for (qsizetype length = 0; length <= file.size(); ++length) {
        // A copy of its own, so that a read beyond the cut is one beyond the memory.
        QByteArray cut(file.constData(), length);
        cut.squeeze();

        const MetadataBlocks blocks = GetParam().read(cut);

        EXPECT_LE(blocks.xmp.size(), length);
    }
}

TEST_P(DamagedFile, IsReadWithAnyByteChanged)
{
    for (qsizetype place = 0; place < GetParam().file.size(); ++place) {
        for (const char value : {'\0', '\x01', '\x7F', '\xFF'}) {
            QByteArray changed = GetParam().file;
            changed[place] = value;

            const MetadataBlocks blocks = GetParam().read(changed);

            EXPECT_LE(blocks.comment.size(), changed.size());
        }
    }
}

INSTANTIATE_TEST_SUITE_P(
    Containers,
    DamagedFile,
    testing::Values(
        DamageCase{
            "Jpeg",
            readJpegBlocks,
            bareJpeg(
                {exifSegment(smallExif()),
                 segment(jpeg::app1, jpeg::xmpHeader.toByteArray() + xmpPacket("A title")),
                 segment(jpeg::app13, iptcSegmentContents(iptcDataSet(120, "caption")))}
            )},
        DamageCase{
            "Png",
            readPngBlocks,
            barePng(
                {pngChunk("eXIf", smallExif()),
                 pngInternationalText("XML:com.adobe.xmp", "xmp"),
                 rawProfileChunk("iptc", photoshopResource(0x0404, iptcDataSet(120, "c")))}
            )},
        DamageCase{"Tiff", readTiffBlocks, tiffWithMetadata()},
        DamageCase{
            "TiffThumbnail", readTiffBlocks, exifBlock({.make = "Brand", .thumbnail = "picture"})},
        DamageCase{"Heif", readHeifBlocks, bareHeif(smallExif(), "xmp")},
        DamageCase{
            "Jpeg2000",
            readJpeg2000Blocks,
            bareJpeg2000({isoBox("uuid", "JpgTiffExif->JP2" + smallExif())})},
        DamageCase{"JpegXl", readJpegXlBlocks, bareJpegXl(smallExif(), "xmp")},
        DamageCase{"Webp", readWebpBlocks, bareWebp(smallExif(), "xmp")},
        DamageCase{"Gif", readGifBlocks, bareGif("comment", "xmp")},
        DamageCase{
            "Psd", readPsdBlocks, barePsd(photoshopResource(0x0404, iptcDataSet(120, "caption")))}
    ),
    CaseName{}
);
