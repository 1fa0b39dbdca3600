// SPDX-License-Identifier: GPL-3.0-or-later
#include "block_builder.h"
#include "container_builder.h"

#include <platform/containers/bytes.h>
#include <platform/containers/jpeg_segments.h>
#include <platform/containers/photoshop_resources.h>
#include <platform/containers/png_chunks.h>
#include <platform/containers/tiff_edit.h>
#include <platform/metadata/block_readers.h>
#include <platform/metadata/block_replacers.h>
#include <platform/metadata/exif_properties.h>
#include <platform/metadata/xmp_packet.h>
#include <platform/metadata/xmp_values.h>
#include <support/exif_block.h>
#include <support/iptc_block.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace brenvaldo::platform::containers;
using namespace brenvaldo::platform::metadata;
using namespace brenvaldo::test;

namespace {

using Editor = std::optional<QByteArrayList> (*)(QByteArrayView, const MetadataEdit&);

const MetadataEdit& comment()
{
    static const MetadataEdit edit{.userComment = u"new"_s};
    return edit;
}

const MetadataEdit& newHeadline()
{
    static const MetadataEdit edit{.iptc = {{IptcKey::Headline, {u"News"_s}}}};
    return edit;
}

const MetadataEdit& both()
{
    static const MetadataEdit edit{.userComment = u"new"_s, .iptc = newHeadline().iptc};
    return edit;
}

/// The file after the edit; empty where it was refused.
QByteArray edited(Editor editor, const QByteArray& file, const MetadataEdit& edit)
{
    const auto pieces = editor(file, edit);
    return pieces ? pieces->join() : QByteArray();
}

QString commentOf(const MetadataBlocks& blocks)
{
    const auto exif = TiffFile::open(blocks.exif);
    return exif
        ? exifProperties(*exif).exif.text(QLatin1StringView("UserComment")).value_or(u"none"_s)
        : u"none"_s;
}

QString headlineOf(const MetadataBlocks& blocks)
{
    return XmpValues(blocks.xmp).texts("Xmp.photoshop.Headline").value(0, u"none"_s);
}

QByteArray plainExif() { return exifBlock({.make = "Brand", .userComment = "ASCII\0\0\0old"}); }

QByteArray app(int number, const QByteArray& contents)
{
    return jpegSegment(static_cast<std::uint8_t>(0xE0 + number), contents);
}
QByteArray jfif() { return app(0, QByteArray("JFIF\0\1\1\0\0\1\0\1\0\0", 14)); }
QByteArray replacedExifSegment(const QByteArray& block)
{
    return app(1, jpeg::exifHeader.toByteArray() + block);
}
QByteArray xmpSegment(const QByteArray& packet)
{
    return app(1, jpeg::xmpHeader.toByteArray() + packet);
}
QByteArray profile() { return app(2, QByteArray("ICC_PROFILE\0\1\1profile", 21)); }

/// The segments of a file by what they start with.
QByteArrayList headsOf(const QByteArray& file)
{
    const auto header = readJpegHeader(file);
    QByteArrayList heads;
    for (const JpegSegment& segment : header ? header->segments : QList<JpegSegment>())
        heads.append(segment.payload.first(qMin<qsizetype>(4, segment.payload.size())).toByteArray()
        );
    return heads;
}

} // namespace

TEST(EditedJpeg, LeavesAllOtherSegmentsAndTheScan)
{
    const QByteArray camera = app(5, "Camera");
    const QByteArray before = bareJpeg(
        {jfif(),
         replacedExifSegment(plainExif()),
         profile(),
         camera,
         jpegSegment(0xFE, "a comment")}
    );

    const QByteArray after = edited(editedJpeg, before, both());

    EXPECT_EQ(commentOf(readJpegBlocks(after)), u"new"_s);
    EXPECT_EQ(headlineOf(readJpegBlocks(after)), u"News"_s);
    EXPECT_TRUE(after.startsWith("\xFF\xD8" + jfif()));
    EXPECT_TRUE(after.endsWith(before.sliced(before.indexOf(profile()))));
}

TEST(EditedJpeg, PutsWhatIsNewBehindTheSegmentsThatLead)
{
    const QByteArray after = edited(editedJpeg, bareJpeg({jfif(), profile()}), both());

    EXPECT_EQ(headsOf(after), (QByteArrayList{"JFIF", "Exif", "http", "Phot", "ICC_"}));
}

TEST(EditedJpeg, PutsWhatIsChangedWhereItStood)
{
    const QByteArray before = bareJpeg(
        {profile(),
         app(13, iptcSegmentContents(iptcDataSet(90, "Bern"))),
         xmpSegment(xmpPacket("A title")),
         app(7, "Other"),
         replacedExifSegment(plainExif())}
    );

    const QByteArray after = edited(editedJpeg, before, both());

    EXPECT_EQ(headsOf(after), (QByteArrayList{"ICC_", "Phot", "http", "Othe", "Exif"}));
    EXPECT_TRUE(readJpegBlocks(after).iptc.contains(iptcDataSet(90, "Bern")));
}

TEST(EditedJpeg, LeavesSegmentsAloneThatTheEditDoesNotName)
{
    const QByteArray before
        = bareJpeg({jfif(), replacedExifSegment(plainExif()), xmpSegment(xmpPacket("A title"))});

    const QByteArray commented = edited(editedJpeg, before, comment());
    const QByteArray titled = edited(editedJpeg, before, newHeadline());

    EXPECT_TRUE(commented.contains(xmpSegment(xmpPacket("A title"))));
    EXPECT_TRUE(titled.contains(replacedExifSegment(plainExif())));
}

TEST(EditedJpeg, KeepsASecondPacketAndStrayBytes)
{
    const QByteArray second = xmpSegment(xmpPacket("Of another program"));
    const QByteArray before
        = bareJpeg({jfif(), "\xFF\xFF" + xmpSegment(xmpPacket("A title")), second});

    const QByteArray after = edited(editedJpeg, before, newHeadline());

    EXPECT_TRUE(after.contains(second));
    EXPECT_EQ(headlineOf(readJpegBlocks(after)), u"News"_s);
}

TEST(EditedJpeg, RefusesABlockThatGrowsOutOfItsSegment)
{
    const QByteArray exif = exifBlock({.makerNote = QByteArray(65000, 'x')});
    const MetadataEdit longComment{.userComment = QString(3000, u'y')};

    EXPECT_FALSE(editedJpeg(bareJpeg({jfif(), replacedExifSegment(exif)}), longComment));
    EXPECT_TRUE(editedJpeg(bareJpeg({jfif(), replacedExifSegment(exif)}), comment()));
}

TEST(EditedJpeg, KeepsABlockOfSeveralSegments)
{
    const QByteArray exif = exifBlock({.makerNote = QByteArray(70000, 'x')});
    const QByteArray before = bareJpeg(
        {jfif(), replacedExifSegment(exif.first(65000)), replacedExifSegment(exif.sliced(65000))}
    );

    const QByteArray after = edited(editedJpeg, before, comment());

    EXPECT_EQ(headsOf(after), (QByteArrayList{"JFIF", "Exif", "Exif"}));
    EXPECT_EQ(commentOf(readJpegBlocks(after)), u"new"_s);
}

TEST(EditedPng, WritesInFrontOfPictureDataThatAreCutOff)
{
    const QByteArray before = barePng({});
    const QByteArray cut = before.first(before.indexOf("IDAT") + 6);

    const QByteArray after = edited(editedPng, cut, comment());

    EXPECT_EQ(commentOf(readPngBlocks(after)), u"new"_s);
    EXPECT_TRUE(after.endsWith("IDATpi"));
}

TEST(EditedJpeg, RefusesAPacketThatGrowsOutOfItsSegmentAndHasFurtherOnes)
{
    MetadataBlocks blocks;
    blocks.xmp = fullXmpPacket(70000);
    QByteArrayList segments = xmpSegments(blocks.xmp);
    ASSERT_EQ(segments.size(), 3);
    const QByteArray before = bareJpeg(QByteArrayList{jfif()} + segments);

    EXPECT_EQ(headlineOf(readJpegBlocks(edited(editedJpeg, before, newHeadline()))), u"News"_s);
    EXPECT_EQ(
        edited(editedJpeg, before, {.iptc = {{IptcKey::Headline, {QString(66000, u'x')}}}}),
        QByteArray()
    );
}

TEST(EditedJpeg, TellsTheIndexOfFurtherPicturesWhereTheyAre)
{
    const auto little = [](std::uint64_t number) {
        QByteArray bytes;
        appendUnsigned(bytes, number, 4, ByteOrder::Little);
        return bytes;
    };
    const auto index = [&little](std::uint64_t firstSize, std::uint64_t offset) {
        const QByteArray entries = little(0x20000) + little(firstSize) + little(0) + little(0)
            + little(0) + little(7) + little(offset) + little(0);
        const TiffDirectory directory{{.tag = 0xB002, .type = tiff::Undefined, .value = entries}};
        return app(
            2,
            QByteArray("MPF\0", 4) + tiffHeader(ByteOrder::Little, 8)
                + serializedDirectory(directory, 8, ByteOrder::Little)
        );
    };
    const auto file = [&](std::uint64_t size, std::uint64_t offset) {
        return bareJpeg({jfif(), replacedExifSegment(plainExif()), index(size, offset)})
            + "picture";
    };
    const QByteArray bare = file(0, 0);
    const auto placeOf = [](const QByteArray& bytes) {
        return static_cast<std::uint64_t>(bytes.indexOf("picture"));
    };
    const auto headerOf = [](const QByteArray& bytes) {
        return static_cast<std::uint64_t>(bytes.indexOf("MPF") + 4);
    };
    const QByteArray before = file(placeOf(bare), placeOf(bare) - headerOf(bare));

    for (const MetadataEdit& edit : {comment(), newHeadline(), both()}) {
        const QByteArray after = edited(editedJpeg, before, edit);
        EXPECT_TRUE(after.contains(index(placeOf(after), placeOf(after) - headerOf(after))));
    }
}

TEST(EditedJpeg, RefusesWhatIsNoJpeg)
{
    EXPECT_FALSE(editedJpeg("no JPEG", comment()));
    EXPECT_FALSE(editedJpeg("\xFF\xD8", comment()));
}

TEST(EditedPng, LeavesAllOtherChunks)
{
    const QByteArray other = pngChunk("tEXt", QByteArray("Author\0Jane", 11));
    const QByteArray before = barePng({pngChunk("eXIf", plainExif()), other});

    const QByteArray after = edited(editedPng, before, both());

    EXPECT_EQ(commentOf(readPngBlocks(after)), u"new"_s);
    EXPECT_EQ(headlineOf(readPngBlocks(after)), u"News"_s);
    EXPECT_TRUE(readPngBlocks(after).iptc.contains(iptcDataSet(105, "News")));
    EXPECT_TRUE(after.contains(other));
    EXPECT_TRUE(after.endsWith(before.sliced(before.indexOf(pngChunk("IDAT", "pixels")))));
    EXPECT_EQ(after.count("eXIf"), 1);
}

TEST(EditedPng, LeavesOnePlaceOfABlock)
{
    const QByteArray before = barePng(
        {rawProfileChunk("exif", jpeg::exifHeader.toByteArray() + plainExif()),
         pngChunk("eXIf", plainExif()),
         rawProfileChunk("iptc", iptcDataSet(90, "Bern")),
         rawProfileChunk("xmp", xmpPacket("A title"))}
    );

    const QByteArray after = edited(editedPng, before, both());

    EXPECT_FALSE(after.contains("Raw profile type exif"));
    EXPECT_FALSE(after.contains("Raw profile type xmp"));
    EXPECT_EQ(after.count("eXIf"), 1);
    EXPECT_EQ(after.count("Raw profile type iptc"), 1);
    EXPECT_TRUE(readPngBlocks(after).iptc.contains(iptcDataSet(90, "Bern")));
    EXPECT_EQ(XmpValues(readPngBlocks(after).xmp).texts("Xmp.dc.title"), QStringList{u"A title"_s});
}

TEST(EditedPng, WritesABlockOnceWhereThePictureIsInPieces)
{
    QByteArray before = barePng({});
    before.insert(before.indexOf(pngChunk("IEND", {})), pngChunk("IDAT", "more"));

    const QByteArray after = edited(editedPng, before, comment());

    EXPECT_EQ(after.count("eXIf"), 1);
    EXPECT_LT(after.indexOf("eXIf"), after.indexOf("IDAT"));
}

TEST(EditedPng, RefusesWhatIsNoPng) { EXPECT_FALSE(editedPng("no PNG", comment())); }

TEST(EditedTiffFile, KeepsBlocksInTheirTags)
{
    TiffDirectory root{
        {.tag = tiff::Iptc, .type = tiff::Byte, .value = iptcDataSet(90, "Bern")},
        {.tag = tiff::PhotoshopResources,
         .type = tiff::Byte,
         .value = brenvaldo::test::photoshopResource(0x0404, iptcDataSet(90, "Bern"))},
        {.tag = tiff::Xmp, .type = tiff::Byte, .value = xmpPacket("A title")}};
    const QByteArray before
        = tiffHeader(ByteOrder::Big, 8) + serializedDirectory(root, 8, ByteOrder::Big);

    const MetadataBlocks after = readTiffBlocks(edited(editedTiffFile, before, both()));

    EXPECT_EQ(commentOf(after), u"new"_s);
    EXPECT_EQ(headlineOf(after), u"News"_s);
    EXPECT_TRUE(after.iptc.contains(iptcDataSet(90, "Bern")));
    EXPECT_TRUE(after.iptc.contains(iptcDataSet(105, "News")));
    EXPECT_EQ(photoshopResourceData(after.photoshop, PhotoshopResourceId::Iptc), after.iptc);
}

TEST(EditedTiffFile, TakesIptcFromTheResourcesWhereItStandsThereAlone)
{
    TiffDirectory root{
        {.tag = tiff::PhotoshopResources,
         .type = tiff::Byte,
         .value = brenvaldo::test::photoshopResource(0x0404, iptcDataSet(90, "Bern"))}};
    const QByteArray before
        = tiffHeader(ByteOrder::Big, 8) + serializedDirectory(root, 8, ByteOrder::Big);

    const MetadataBlocks after = readTiffBlocks(edited(editedTiffFile, before, newHeadline()));

    EXPECT_TRUE(after.iptc.contains(iptcDataSet(90, "Bern")));
    EXPECT_EQ(photoshopResourceData(after.photoshop, PhotoshopResourceId::Iptc), after.iptc);
}

TEST(EditedTiffFile, ChangesNothingWithoutAChange)
{
    const QByteArray before = emptyTiff(ByteOrder::Big);

    EXPECT_EQ(edited(editedTiffFile, before, {.iptc = {{IptcKey::Keywords, {}}}}), before);
}

TEST(EditedTiffFile, RefusesDamageAndBigTiff)
{
    TiffDirectory root{{.tag = tiff::Xmp, .type = tiff::Byte, .value = "no packet"}};
    const QByteArray damaged
        = tiffHeader(ByteOrder::Big, 8) + serializedDirectory(root, 8, ByteOrder::Big);
    root = {
        {.tag = tiff::PhotoshopResources,
         .type = tiff::Byte,
         .value = brenvaldo::test::photoshopResource(0x0404, iptcDataSet(90, "Bern")) + "garbage"}};
    const QByteArray damagedResources
        = tiffHeader(ByteOrder::Big, 8) + serializedDirectory(root, 8, ByteOrder::Big);

    EXPECT_FALSE(editedTiffFile("no TIFF", comment()));
    EXPECT_FALSE(editedTiffFile(damaged, newHeadline()));
    EXPECT_TRUE(editedTiffFile(damaged, comment()));
    EXPECT_FALSE(editedTiffFile(damagedResources, newHeadline()));
}

TEST(EditedJpeg2000, LeavesAllOtherBoxes)
{
    const QByteArray other = isoBox("uuid", QByteArray(16, 'u') + "of another");
    const QByteArray before = bareJpeg2000({other});

    const QByteArray after = edited(editedJpeg2000, before, both());

    EXPECT_EQ(commentOf(readJpeg2000Blocks(after)), u"new"_s);
    EXPECT_EQ(headlineOf(readJpeg2000Blocks(after)), u"News"_s);
    EXPECT_TRUE(after.contains(other));
}

TEST(EditedJpeg2000, ReplacesEveryBlockWhereItStands)
{
    const QByteArray before = bareJpeg2000(
        {isoBox("uuid", QByteArray::fromHex("0537cdab9d0c4431a72afa561f2a113e") + plainExif()),
         isoBox(
             "uuid", QByteArray::fromHex("be7acfcb97a942e89c71999491e3afac") + xmpPacket("A title")
         ),
         isoBox(
             "uuid",
             QByteArray::fromHex("33c7a4d2b81d4723a0baf1a3e097ad38") + iptcDataSet(90, "Bern")
         ),
         isoBox(
             "uuid",
             QByteArray::fromHex("2c4c0100850440b9a03e562148d6dfeb")
                 + brenvaldo::test::photoshopResource(0x0404, iptcDataSet(90, "Bern"))
         )}
    );

    const QByteArray after = edited(editedJpeg2000, before, both());

    const MetadataBlocks blocks = readJpeg2000Blocks(after);
    EXPECT_EQ(after.count("uuid"), 4);
    EXPECT_EQ(commentOf(blocks), u"new"_s);
    EXPECT_EQ(XmpValues(blocks.xmp).texts("Xmp.dc.title"), QStringList{u"A title"_s});
    EXPECT_TRUE(blocks.iptc.contains(iptcDataSet(90, "Bern")));
    EXPECT_TRUE(blocks.iptc.contains(iptcDataSet(105, "News")));
    EXPECT_EQ(photoshopResourceData(blocks.photoshop, PhotoshopResourceId::Iptc), blocks.iptc);
}

TEST(EditedJpeg2000, PutsWhatIsNewInFrontOfAPictureWithoutAnEnd)
{
    QByteArray before = bareJpeg2000({});
    before.replace(before.indexOf("jp2c") - 4, 4, QByteArray(4, '\0'));

    const QByteArray after = edited(editedJpeg2000, before, comment());

    EXPECT_TRUE(after.endsWith(QByteArray(4, '\0') + "jp2ccode"));
    EXPECT_EQ(commentOf(readJpeg2000Blocks(after)), u"new"_s);
}

TEST(EditedJpeg2000, RefusesWhatPointsIntoTheFileAndBareStreams)
{
    EXPECT_FALSE(editedJpeg2000("\xFF\x4F\xFF\x51", comment()));
    for (const char* type : {"ftbl", "moov", "moof"})
        EXPECT_FALSE(editedJpeg2000(bareJpeg2000({isoBox(type, "places")}), comment())) << type;
}
