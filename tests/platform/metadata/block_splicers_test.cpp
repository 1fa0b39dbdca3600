// SPDX-License-Identifier: GPL-3.0-or-later
#include "block_builder.h"
#include "container_builder.h"

#include <platform/containers/inflate.h>
#include <platform/containers/jpeg_segments.h>
#include <platform/containers/png_chunks.h>
#include <platform/metadata/block_readers.h>
#include <platform/metadata/block_splicers.h>
#include <platform/metadata/exif_directories.h>
#include <platform/metadata/xmp_packet.h>
#include <platform/metadata/xmp_values.h>
#include <support/exif_block.h>
#include <support/iptc_block.h>
#include <support/photo_builder.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace brenvaldo::platform::containers;
using namespace brenvaldo::platform::metadata;
using namespace brenvaldo::test;

namespace {

QByteArray encodedJpeg()
{
    return bareJpeg(
        {brenvaldo::platform::containers::jpegSegment(
             jpeg::app0, QByteArrayView("JFIF\0\x01\x01\0\0\x48\0\x48\0\0", 14)
         ),
         brenvaldo::platform::containers::jpegSegment(
             jpeg::app2, QByteArrayView("ICC_PROFILE\0\x01\x01p", 15)
         )}
    );
}

MetadataBlocks throughJpeg(const MetadataBlocks& blocks)
{
    const QByteArray encoded = encodedJpeg();
    return readJpegBlocks(splicedJpeg(encoded, blocks)->join());
}

QByteArray splicedTiffOf(const QByteArray& encoded, const MetadataBlocks& blocks)
{
    return splicedTiff(encoded, blocks)->join();
}

QByteArray encodedTiff(int depth = 8)
{
    return PhotoBuilder{}.format(PhotoFormat::Tiff).depth(depth).bytes();
}

QByteArray gammaChunk() { return pngChunk("gAMA", QByteArray("\0\0\xB1\x8F", 4)); }

QByteArray profileChunk(const QByteArray& name, const QByteArray& profile)
{
    return pngChunk("iCCP", name + QByteArray(2, '\0') + deflated(profile));
}

/// The maker note of an EXIF block or a TIFF; an empty field without one.
TiffField makerNoteOf(const TiffFile& file)
{
    const TiffDirectory exif = file.subDirectory(file.firstDirectory(), tiff::ExifDirectory);
    const TiffField* note = fieldOf(exif, tiff::MakerNote);
    return note ? *note : TiffField{};
}

/// The strips of a TIFF, joined.
QByteArray stripsOf(const QByteArray& file)
{
    const auto tiffFile = TiffFile::open(file);
    const TiffDirectory image = tiffFile->firstDirectory();
    constexpr std::uint16_t stripLengths = 279;
    const auto offsets = unsignedValues(*fieldOf(image, tiff::StripOffsets), tiffFile->order());
    const auto lengths = unsignedValues(*fieldOf(image, stripLengths), tiffFile->order());
    QByteArray strips;
    for (qsizetype i = 0; i < offsets.size(); ++i)
        strips += sliceOf(file, offsets[i], lengths[i])->toByteArray();
    return strips;
}

} // namespace

TEST(SplicedJpeg, PutsTheMetadataBetweenJfifAndTheProfile)
{
    const QByteArray encoded = encodedJpeg();

    const QByteArray file = splicedJpeg(encoded, cameraBlocks())->join();

    QList<int> markers;
    const auto header = readJpegHeader(file);
    for (const JpegSegment& segment : header->segments)
        markers.append(segment.marker);
    EXPECT_EQ(markers, (QList<int>{0xE0, 0xE1, 0xE1, 0xED, 0xE5, 0xFE, 0xE2}));
}

TEST(SplicedJpeg, SplitsABlockThatIsTooLongForASegment)
{
    MetadataBlocks blocks;
    blocks.exif = exifBlock({.make = "Brand", .thumbnail = QByteArray(150000, 't')});
    blocks.photoshop = photoshopResource(0x0425, QByteArray(140001, 'p'));
    blocks.comment = QByteArray(70000, 'c');

    const MetadataBlocks read = throughJpeg(blocks);

    EXPECT_EQ(read.exif, blocks.exif);
    EXPECT_EQ(read.photoshop, blocks.photoshop);
    EXPECT_EQ(read.comment.size() + read.jpegSegments.value(0).size() - 4, blocks.comment.size());
}

TEST(SplicedJpeg, TakesThePaddingFromAPacketThatIsTooLongWithIt)
{
    MetadataBlocks blocks;
    blocks.xmp = xmpPacket("A title", 80000);

    const MetadataBlocks read = throughJpeg(blocks);

    EXPECT_TRUE(read.jpegSegments.isEmpty());
    EXPECT_EQ(XmpValues(read.xmp).texts("Xmp.dc.title"), QStringList(u"A title"_s));
}

TEST(SplicedJpeg, ExtendsAPacketThatIsTooLong)
{
    MetadataBlocks blocks;
    blocks.xmp = fullXmpPacket(200000);

    const MetadataBlocks read = throughJpeg(blocks);

    EXPECT_EQ(read.jpegSegments.size(), 4);
    EXPECT_EQ(
        XmpValues(completeXmp(read)).texts("Xmp.dc.title"),
        XmpValues(blocks.xmp).texts("Xmp.dc.title")
    );
}

TEST(SplicedJpeg, KeepsAnExtendedPacketToTheBit)
{
    MetadataBlocks blocks;
    blocks.xmp = fullXmpPacket(200000);
    const MetadataBlocks extended = throughJpeg(blocks);

    const MetadataBlocks again = throughJpeg(extended);

    EXPECT_EQ(again.xmp, extended.xmp);
    EXPECT_EQ(again.jpegSegments, extended.jpegSegments);
}

TEST(SplicedJpeg, PutsIptcThatCameAloneIntoAResource)
{
    MetadataBlocks blocks;
    blocks.iptc = iptcDataSet(120, "caption");

    EXPECT_EQ(throughJpeg(blocks).photoshop, photoshopResource(0x0404, blocks.iptc));
}

TEST(SplicedJpeg, RefusesWhatIsNoJpeg)
{
    EXPECT_FALSE(splicedJpeg("no JPEG", cameraBlocks()).has_value());
}

TEST(CompleteXmp, LeavesOutAnExtendedPartWithAGap)
{
    MetadataBlocks blocks;
    blocks.xmp = fullXmpPacket(200000);
    MetadataBlocks extended = throughJpeg(blocks);
    extended.jpegSegments.removeAt(1);

    EXPECT_EQ(completeXmp(extended), extended.xmp);
}

TEST(SplicedPng, KeepsTheTextsOfAPng)
{
    MetadataBlocks blocks;
    blocks.comment = "hello";
    blocks.pngTextChunks = {pngInternationalText("Title", "A title")};
    const QByteArray encoded = barePng({});

    const MetadataBlocks read = readPngBlocks(splicedPng(encoded, blocks)->join());

    EXPECT_EQ(read.pngTextChunks.first(), blocks.pngTextChunks.first());
    EXPECT_EQ(read.comment, "hello");
}

TEST(SplicedPng, WritesACommentOnce)
{
    MetadataBlocks blocks;
    blocks.comment = "hello";
    const QByteArray encoded = barePng({});
    const MetadataBlocks once = readPngBlocks(splicedPng(encoded, blocks)->join());

    const MetadataBlocks twice = readPngBlocks(splicedPng(encoded, once)->join());

    EXPECT_EQ(twice.pngTextChunks, once.pngTextChunks);
}

TEST(SplicedPng, KeepsTheTimeOfAPng)
{
    const QByteArray time = pngChunk("tIME", QByteArray("\x07\xEA\x0B\x0F\x0A\x2C\x21", 7));
    const MetadataBlocks blocks = readPngBlocks(barePng({time}));
    const QByteArray encoded = barePng({});

    EXPECT_EQ(
        readPngBlocks(splicedPng(encoded, blocks)->join()).pngTextChunks, QByteArrayList{time}
    );
}

TEST(SplicedPng, KeepsWhatDescribesColorsWithoutAProfile)
{
    const QByteArrayList colors{gammaChunk(), pngChunk("sRGB", QByteArray(1, '\0'))};
    const MetadataBlocks blocks = readPngBlocks(barePng(colors));
    const QByteArray encoded = barePng({});

    EXPECT_EQ(readPngBlocks(splicedPng(encoded, blocks)->join()).pngColorChunks, colors);
}

TEST(SplicedPng, KeepsWhatDescribesColorsBesideTheSameProfile)
{
    const QByteArrayList colors{profileChunk("its own name", "profile"), gammaChunk()};
    const MetadataBlocks blocks = readPngBlocks(barePng(colors));
    const QByteArray encoded = barePng({profileChunk("ICC Profile", "profile")});

    EXPECT_EQ(readPngBlocks(splicedPng(encoded, blocks)->join()).pngColorChunks, colors);
}

TEST(SplicedPng, LeavesOutAProfileThatNobodyCanRead)
{
    const QByteArray notDeflated = pngChunk("iCCP", QByteArray("name\0\0damage", 12));
    const MetadataBlocks blocks = readPngBlocks(barePng({notDeflated, gammaChunk()}));
    const QByteArray encoded = barePng({});

    EXPECT_EQ(
        readPngBlocks(splicedPng(encoded, blocks)->join()).pngColorChunks,
        QByteArrayList{gammaChunk()}
    );
}

TEST(SplicedPng, LeavesOutWhatDescribedColorsThatWereConverted)
{
    const MetadataBlocks blocks = readPngBlocks(barePng({gammaChunk()}));
    const QByteArray profile = profileChunk("ICC Profile", "another profile");
    const QByteArray encoded = barePng({profile});

    EXPECT_EQ(
        readPngBlocks(splicedPng(encoded, blocks)->join()).pngColorChunks, QByteArrayList{profile}
    );
}

TEST(SplicedPng, WritesADamagedExifBlockNotAtAll)
{
    MetadataBlocks blocks;
    blocks.exif = "no TIFF structure";
    const QByteArray encoded = barePng({});

    EXPECT_EQ(splicedPng(encoded, blocks)->join(), encoded);
}

TEST(SplicedPng, RefusesAPngWithoutPicture)
{
    EXPECT_FALSE(splicedPng("\x89PNG\r\n\x1A\n", cameraBlocks()).has_value());
}

TEST(SplicedTiff, LeavesTheMakerNoteAtItsOffset)
{
    const MetadataBlocks blocks = cameraBlocks();
    const TiffField before = makerNoteOf(*TiffFile::open(blocks.exif));

    const QByteArray file = splicedTiffOf(encodedTiff(), blocks);

    const TiffField after = makerNoteOf(*TiffFile::open(file));
    EXPECT_FALSE(before.value.isEmpty());
    EXPECT_EQ(after.value, before.value);
    EXPECT_EQ(after.valueOffset, before.valueOffset);
}

TEST(SplicedTiff, KeepsTheOffsetOfTheMakerNoteBackIntoABlock)
{
    const MetadataBlocks blocks = cameraBlocks();
    const QByteArray file = splicedTiffOf(encodedTiff(), blocks);

    const MetadataBlocks read = readTiffBlocks(file);

    const TiffField before = makerNoteOf(*TiffFile::open(blocks.exif));
    const TiffField after = makerNoteOf(*TiffFile::open(read.exif));
    EXPECT_EQ(after.value, before.value);
    EXPECT_EQ(after.valueOffset, before.valueOffset);
}

TEST(SplicedTiff, KeepsThePixelsInEitherByteOrder)
{
    const QByteArray encoded = encodedTiff();
    MetadataBlocks blocks = cameraBlocks();
    blocks.exif
        = serializedExif(inOrder(exifDirectoriesOf(*TiffFile::open(blocks.exif)), ByteOrder::Big));

    const QByteArray file = splicedTiffOf(encoded, blocks);

    EXPECT_EQ(TiffFile::open(file)->order(), ByteOrder::Big);
    EXPECT_EQ(stripsOf(file), stripsOf(encoded));
}

TEST(SplicedTiff, TurnsTheBlockWhereThePixelsHaveAByteOrder)
{
    const QByteArray encoded = encodedTiff(16);
    const MetadataBlocks camera = cameraBlocks();
    MetadataBlocks blocks = camera;
    blocks.exif
        = serializedExif(inOrder(exifDirectoriesOf(*TiffFile::open(camera.exif)), ByteOrder::Big));

    const QByteArray file = splicedTiffOf(encoded, blocks);

    EXPECT_EQ(TiffFile::open(file)->order(), TiffFile::open(encoded)->order());
    EXPECT_EQ(stripsOf(file), stripsOf(encoded));
    EXPECT_EQ(
        makerNoteOf(*TiffFile::open(file)).value, makerNoteOf(*TiffFile::open(camera.exif)).value
    );
}

TEST(SplicedTiff, KeepsIptcWithoutPadding)
{
    MetadataBlocks blocks;
    blocks.iptc = iptcDataSet(120, "abcd");

    const QByteArray file = splicedTiffOf(encodedTiff(), blocks);

    EXPECT_EQ(fieldOf(TiffFile::open(file)->firstDirectory(), tiff::Iptc)->value, blocks.iptc);
    EXPECT_EQ(readTiffBlocks(file).iptc, blocks.iptc);
}

TEST(SplicedTiff, WritesADamagedExifBlockNotAtAll)
{
    MetadataBlocks blocks;
    blocks.exif = "no TIFF structure";
    blocks.xmp = xmpPacket("A title");

    EXPECT_EQ(readTiffBlocks(splicedTiffOf(encodedTiff(), blocks)).xmp, blocks.xmp);
}
