// SPDX-License-Identifier: GPL-3.0-or-later
#include "block_builder.h"
#include "container_builder.h"

#include <platform/containers/bytes.h>
#include <platform/containers/iso_boxes.h>
#include <platform/metadata/block_readers.h>
#include <platform/metadata/block_replacers.h>
#include <platform/metadata/exif_properties.h>
#include <platform/metadata/exif_root_fields.h>
#include <platform/metadata/heif_locations.h>
#include <platform/metadata/tiff_blocks.h>
#include <platform/metadata/xmp_values.h>
#include <support/case_name.h>
#include <support/exif_block.h>
#include <support/iptc_block.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace brenvaldo::platform::containers;
using namespace brenvaldo::platform::metadata;
using brenvaldo::test::bareHeif;
using brenvaldo::test::CaseName;
using brenvaldo::test::exifBlock;
using brenvaldo::test::iptcDataSet;
using brenvaldo::test::xmpPacket;

namespace {

QByteArray big(std::uint64_t value, int width)
{
    QByteArray bytes;
    appendUnsigned(bytes, value, width, ByteOrder::Big);
    return bytes;
}

QByteArray box(const char* type, const QByteArray& payload)
{
    return brenvaldo::test::isoBox(type, payload);
}

QByteArray fullBox(const char* type, int version, const QByteArray& payload)
{
    return box(type, big(static_cast<std::uint64_t>(version), 1) + QByteArray(3, '\0') + payload);
}

/// A file of one picture, item 1, as small programs write it: no metadata at all.
struct Picture
{
    int locationVersion = 0;
    int offsetWidth = 4;
    int baseWidth = 0;
    int referenceVersion = -1; ///< -1: no box of references
    int informationVersion = 0;
    bool endsOpen = false;
    std::uint64_t offsetShift = 0; ///< of the picture's data against where they are
    QByteArray itemData = {}; ///< of a second item, in the metadata box itself
    QByteArray further = {}; ///< boxes in front of the data

    [[nodiscard]] QByteArray meta(std::uint64_t dataOffset) const
    {
        const int idWidth = locationVersion == 2 ? 4 : 2;
        const QByteArray method = locationVersion == 0 ? QByteArray() : big(0, 2);
        const std::uint64_t items = itemData.isEmpty() ? 1 : 2;
        const std::uint64_t base = baseWidth == 0 ? 0 : 100;
        QByteArray locations = big(static_cast<std::uint64_t>(offsetWidth << 4 | 4), 1)
            + big(static_cast<std::uint64_t>(baseWidth << 4), 1) + big(items, idWidth);
        locations += big(1, idWidth) + method + big(0, 2) + big(base, baseWidth) + big(2, 2)
            + big(dataOffset - base, offsetWidth) + big(4, 4)
            + big(dataOffset + 4 - base, offsetWidth) + big(3, 4);
        if (!itemData.isEmpty())
            locations += big(2, idWidth) + big(1, 2) + big(0, 2) + big(0, baseWidth) + big(1, 2)
                + big(0, offsetWidth) + big(static_cast<std::uint64_t>(itemData.size()), 4);
        const QByteArray entry
            = fullBox("infe", 2, big(1, 2) + big(0, 2) + QByteArray("hvc1\0", 5));
        QByteArray payload = fullBox("pitm", 0, big(1, 2))
            + fullBox("iinf", informationVersion, big(1, informationVersion == 0 ? 2 : 4) + entry)
            + fullBox("iloc", locationVersion, locations);
        if (referenceVersion >= 0)
            payload += fullBox("iref", referenceVersion, {});
        if (!itemData.isEmpty())
            payload += box("idat", itemData);
        return fullBox("meta", 0, payload);
    }

    [[nodiscard]] QByteArray file() const
    {
        const QByteArray start = box("ftyp", "heic") + further;
        const auto metaEnd = static_cast<std::uint64_t>(start.size() + meta(0).size());
        QByteArray data = box("mdat", "picture");
        if (endsOpen)
            data.replace(0, 4, QByteArray(4, '\0'));
        return start + meta(metaEnd + 8 + offsetShift) + data;
    }
};

QByteArrayView metaOf(const QByteArray& file) { return isoBox(isoBoxes(file), "meta"); }

HeifLocations locationsOf(const QByteArray& file)
{
    return *readHeifLocations(isoBox(isoBoxes(metaOf(file).sliced(4)), "iloc"));
}

/// The bytes of item 1, as its locations tell.
QByteArray pictureOf(const QByteArray& file)
{
    QByteArray bytes;
    for (const HeifLocation& item : locationsOf(file).items) {
        if (item.id != 1)
            continue;
        for (const HeifExtent& extent : item.extents)
            bytes += file.mid(
                static_cast<qsizetype>(extent.offset), static_cast<qsizetype>(extent.length)
            );
    }
    return bytes;
}

QByteArray edited(const QByteArray& file, const MetadataEdit& edit)
{
    const auto pieces = editedHeif(file, edit);
    return pieces ? pieces->join() : QByteArray();
}

const MetadataEdit& both()
{
    static const MetadataEdit edit{
        .userComment = u"new"_s, .iptc = {{IptcKey::Headline, {u"News"_s}}}};
    return edit;
}

QString commentOf(const QByteArray& file)
{
    const MetadataBlocks blocks = readHeifBlocks(file);
    const auto exif = TiffFile::open(blocks.exif);
    return exif
        ? exifProperties(*exif).exif.text(QLatin1StringView("UserComment")).value_or(u"none"_s)
        : u"none"_s;
}

QStringList headlineOf(const QByteArray& file)
{
    return XmpValues(readHeifBlocks(file).xmp).texts("Xmp.photoshop.Headline");
}

struct PictureCase
{
    const char* name;
    Picture picture;

    friend void PrintTo(const PictureCase& row, std::ostream* out) { *out << row.name; }
};

} // namespace

class EditedHeif : public testing::TestWithParam<PictureCase>
{
};

TEST_P(EditedHeif, GetsNewItemsAndKeepsThePicture)
{
    const QByteArray before = GetParam().picture.file();
    ASSERT_EQ(pictureOf(before), "picture");

    const QByteArray after = edited(before, both());

    EXPECT_EQ(pictureOf(after), "picture");
    EXPECT_EQ(commentOf(after), u"new"_s);
    EXPECT_EQ(headlineOf(after), QStringList{u"News"_s});
    EXPECT_EQ(isoBoxes(after).last().whole.end(), QByteArrayView(after).end());
    const auto boxes = isoBoxes(metaOf(after).sliced(4));
    EXPECT_EQ(heifItems(isoBox(boxes, "iinf"), isoBox(boxes, "iref"), 1).size(), 3);
}

TEST_P(EditedHeif, ChangesItsItemsWithoutGrowing)
{
    const QByteArray once = edited(GetParam().picture.file(), both());

    const QByteArray twice
        = edited(once, {.userComment = u"old"_s, .iptc = {{IptcKey::Headline, {u"Past"_s}}}});

    EXPECT_EQ(pictureOf(twice), "picture");
    EXPECT_EQ(commentOf(twice), u"old"_s);
    EXPECT_EQ(headlineOf(twice), QStringList{u"Past"_s});
    EXPECT_EQ(twice.size(), once.size());
    EXPECT_EQ(locationsOf(twice).items.size(), locationsOf(once).items.size());
}

INSTANTIATE_TEST_SUITE_P(
    Pictures,
    EditedHeif,
    testing::Values(
        PictureCase{"Plain", {}},
        PictureCase{"WithReferences", {.referenceVersion = 0}},
        PictureCase{"WithLongReferences", {.referenceVersion = 1}},
        PictureCase{"WithMethods", {.locationVersion = 1}},
        PictureCase{"WithLongItemNumbers", {.locationVersion = 2}},
        PictureCase{"WithLongOffsets", {.offsetWidth = 8}},
        PictureCase{"WithABase", {.baseWidth = 4}},
        PictureCase{"WithALongCount", {.informationVersion = 1}},
        PictureCase{"WithoutAnEnd", {.endsOpen = true}},
        PictureCase{"WithBoxesInFront", {.further = box("free", "nothing")}}
    ),
    CaseName{}
);

TEST(EditedHeifFile, LeavesDataInsideOfTheMetadataBox)
{
    const QByteArray before = Picture{.locationVersion = 1, .itemData = "a grid"}.file();

    const QByteArray after = edited(before, both());

    EXPECT_EQ(pictureOf(after), "picture");
    EXPECT_TRUE(metaOf(after).contains(box("idat", "a grid")));
    const HeifLocation inside = locationsOf(after).items.at(1);
    EXPECT_EQ(inside.id, 2U);
    EXPECT_EQ(inside.method, 1U);
    EXPECT_EQ(inside.extents.first().offset, 0U);
}

TEST(EditedHeifFile, ReplacesTheItemsThatItHas)
{
    const QByteArray before = bareHeif(exifBlock({.make = "Brand"}), xmpPacket("A title"));

    const QByteArray after = edited(before, both());

    const MetadataBlocks blocks = readHeifBlocks(after);
    EXPECT_EQ(commentOf(after), u"new"_s);
    EXPECT_EQ(headlineOf(after), QStringList{u"News"_s});
    EXPECT_EQ(XmpValues(blocks.xmp).texts("Xmp.dc.title"), QStringList{u"A title"_s});
    EXPECT_TRUE(blocks.exif.contains("Brand"));
    EXPECT_EQ(locationsOf(after).items.size(), 2);
    EXPECT_TRUE(blocks.iptc.isEmpty());
}

TEST(EditedHeifFile, ChangesDataSetsThatStandInItsExif)
{
    TiffDirectory fields;
    setBlock(fields, tiff::Iptc, iptcDataSet(90, "Bern"));
    setBlock(
        fields,
        tiff::PhotoshopResources,
        brenvaldo::test::photoshopResource(0x0404, iptcDataSet(90, "Bern"))
    );
    const QByteArray exif = withRootFields(exifBlock({.make = "Brand"}), fields);

    const MetadataBlocks blocks = readHeifBlocks(
        edited(bareHeif(exif, xmpPacket("A title")), {.iptc = {{IptcKey::Headline, {u"News"_s}}}})
    );

    EXPECT_TRUE(blocks.iptc.contains(iptcDataSet(90, "Bern")));
    EXPECT_TRUE(blocks.iptc.contains(iptcDataSet(105, "News")));
    EXPECT_TRUE(blocks.photoshop.contains(iptcDataSet(105, "News")));
    EXPECT_TRUE(blocks.exif.contains("Brand"));
}

TEST(EditedHeifFile, IsTheSameWithoutAChange)
{
    const QByteArray before = Picture{}.file();

    EXPECT_EQ(edited(before, {.iptc = {{IptcKey::Keywords, {}}}}), before);
}

TEST(EditedHeifFile, KeepsDataOfOthersAtTheEnd)
{
    // The last box of data is the picture's own, and no item of metadata has taken its place.
    const QByteArray before = bareHeif(exifBlock({.make = "Brand"}), xmpPacket("A title"));
    const auto boxes = isoBoxes(before);
    ASSERT_EQ(boxes.last().type, QByteArrayView("mdat"));

    const QByteArray after = edited(before, {.userComment = u"new"_s});

    EXPECT_EQ(readHeifBlocks(after).xmp, xmpPacket("A title"));
    EXPECT_TRUE(after.contains(boxes.last().whole));
}

TEST(EditedHeifFile, KeepsDataThatNoItemPointsTo)
{
    const QByteArray unknown = box("mdat", "of an unknown program");

    EXPECT_TRUE(edited(Picture{}.file() + unknown, both()).contains(unknown));
}

TEST(EditedHeifFile, IsRefusedWhereItIsNotUnderstood)
{
    const auto refused = [](const QByteArray& file) { return !editedHeif(file, both()); };
    const QByteArray good = Picture{}.file();

    EXPECT_FALSE(refused(good));
    EXPECT_TRUE(refused("no HEIC"));
    EXPECT_TRUE(refused(Picture{.further = box("moov", "a film")}.file()));
    EXPECT_TRUE(refused(Picture{.further = box("moof", "a film")}.file()));
    EXPECT_TRUE(refused(good + "garbage"));
    EXPECT_TRUE(refused(good.chopped(1)));
    // The picture's data overlap the metadata box.
    EXPECT_TRUE(refused(Picture{.offsetShift = std::uint64_t(0) - 10}.file()));
    QByteArray withoutPrimary = good;
    withoutPrimary.replace("pitm", "free");
    EXPECT_TRUE(refused(withoutPrimary));
    QByteArray withoutInformation = good;
    withoutInformation.replace("iinf", "free");
    EXPECT_TRUE(refused(withoutInformation));
    QByteArray withoutLocations = good;
    withoutLocations.replace("iloc", "free");
    EXPECT_TRUE(refused(withoutLocations));
}

TEST(HeifLocations, AreReadAsTheyAreWritten)
{
    HeifLocations locations{.version = 2, .indexWidth = 4};
    locations.items.append(
        {.id = 70000,
         .method = 2,
         .dataReference = 3,
         .extents
         = {{.index = 5, .offset = 6, .length = 7}, {.index = 8, .offset = 9, .length = 1}}}
    );

    for (const int width : {4, 8}) {
        const QByteArray written = heifLocationBox(locations, width);
        const auto read = readHeifLocations(QByteArrayView(written).sliced(8));

        ASSERT_TRUE(read);
        EXPECT_EQ(read->version, 2U);
        EXPECT_EQ(read->indexWidth, 4);
        ASSERT_EQ(read->items.size(), 1);
        EXPECT_EQ(read->items.first().id, 70000U);
        EXPECT_EQ(read->items.first().method, 2U);
        EXPECT_EQ(read->items.first().dataReference, 3U);
        EXPECT_FALSE(read->items.first().isInFile());
        ASSERT_EQ(read->items.first().extents.size(), 2);
        EXPECT_EQ(read->items.first().extents.last().index, 8U);
        EXPECT_EQ(read->items.first().extents.last().offset, 9U);
        EXPECT_EQ(read->items.first().extents.last().length, 1U);
    }
}

TEST(HeifLocations, AreNoneWhereTheBoxIsDamaged)
{
    const QByteArray head
        = QByteArray(4, '\0') + big(0x4400, 2) + big(1, 2) + big(1, 2) + big(0, 2);

    EXPECT_TRUE(readHeifLocations(head + big(1, 2) + big(10, 4) + big(1, 4)));
    EXPECT_FALSE(readHeifLocations(head + big(1, 2) + big(10, 4) + big(1, 3)));
    EXPECT_FALSE(readHeifLocations(head + big(1, 2) + big(10, 4) + big(0, 4))); // to the end
    EXPECT_FALSE(readHeifLocations(QByteArray("\3\0\0\0\x44\0\0\0", 8)));
    EXPECT_FALSE(readHeifLocations(QByteArray("\0\0\0\0\x99\0\0\0", 8)));
    EXPECT_FALSE(readHeifLocations(QByteArray("\0\0\0\0\x40\0\0\0", 8)));
    EXPECT_FALSE(readHeifLocations({}));
}
