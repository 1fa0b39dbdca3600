// SPDX-License-Identifier: GPL-3.0-or-later
#include "block_builder.h"

#include <platform/metadata/exif_directories.h>
#include <platform/metadata/exif_root_fields.h>
#include <platform/metadata/exif_thumbnail.h>
#include <platform/metadata/tiff_blocks.h>
#include <support/exif_block.h>
#include <support/iptc_block.h>

#include <gtest/gtest.h>

using namespace brenvaldo::platform::containers;
using namespace brenvaldo::platform::metadata;
using namespace brenvaldo::test;

namespace {

QByteArray caption() { return iptcDataSet(120, "a caption"); }

TiffDirectory captionFields()
{
    TiffDirectory fields;
    setBlock(fields, tiff::Iptc, caption());
    setBlock(fields, tiff::PhotoshopResources, photoshopResource(0x0425, "digest"));
    return fields;
}

QByteArray evenBlock()
{
    QByteArray block = cameraBlocks().exif;
    if (block.size() % 2 != 0)
        block.append('\0');
    return block;
}

const QList<std::uint16_t>& addedTags()
{
    static const QList<std::uint16_t> tags{tiff::Iptc, tiff::PhotoshopResources};
    return tags;
}

TiffDirectory rootOf(const QByteArray& block)
{
    TiffDirectory root = TiffFile::open(block)->firstDirectory();
    for (TiffField& field : root)
        field.value.detach();
    return root;
}

} // namespace

TEST(WithRootFields, AddsTheFieldsAndMovesNothingElse)
{
    const QByteArray before = evenBlock();

    const QByteArray after = withRootFields(before, captionFields());

    EXPECT_EQ(after.sliced(8, before.size() - 8), before.sliced(8));
    EXPECT_EQ(iptcOf(rootOf(after)), caption());
    EXPECT_EQ(rootOf(after).size(), rootOf(before).size() + 2);
    EXPECT_EQ(fieldOf(rootOf(after), 271)->value, fieldOf(rootOf(before), 271)->value);
    EXPECT_EQ(thumbnailAlone(after), thumbnailAlone(before));
}

TEST(WithRootFields, ReplacesAFieldOfTheSameTag)
{
    const QByteArray once = withRootFields(evenBlock(), captionFields());
    TiffDirectory other;
    setBlock(other, tiff::Iptc, iptcDataSet(120, "another"));

    const QByteArray twice = withRootFields(once, other);

    EXPECT_EQ(iptcOf(rootOf(twice)), iptcDataSet(120, "another"));
    EXPECT_EQ(rootOf(twice).size(), rootOf(once).size());
}

TEST(WithRootFields, FollowsTheByteOrderOfTheBlock)
{
    const QByteArray big
        = serializedExif(inOrder(exifDirectoriesOf(*TiffFile::open(evenBlock())), ByteOrder::Big));

    const QByteArray after = withRootFields(big, captionFields());

    EXPECT_TRUE(after.startsWith("MM"));
    EXPECT_EQ(iptcOf(rootOf(after)), caption());
    EXPECT_EQ(withoutRootFields(after, addedTags()), big);
}

TEST(WithRootFields, LeavesADamagedBlock)
{
    EXPECT_EQ(withRootFields("no TIFF structure", captionFields()), "no TIFF structure");
    const QByteArray cut = evenBlock().first(12);
    EXPECT_EQ(withRootFields(cut, captionFields()), cut);
}

TEST(WithoutRootFields, GivesBackTheBlockThatTheyWerePutInto)
{
    const QByteArray before = evenBlock();

    EXPECT_EQ(withoutRootFields(withRootFields(before, captionFields()), addedTags()), before);
}

TEST(WithoutRootFields, TakesThemFromADirectoryThatStandsAnywhere)
{
    TiffDirectory root = rootOf(exifBlock({.orientation = 6, .make = "Brand"}));
    root += captionFields();
    const QByteArray block
        = tiffHeader(ByteOrder::Little, 8) + serializedDirectory(root, 8, ByteOrder::Little);

    const QByteArray without = withoutRootFields(block, addedTags());

    EXPECT_EQ(rootOf(without).size(), 2);
    EXPECT_EQ(fieldOf(rootOf(without), 271)->value, QByteArray("Brand\0", 6));
}

TEST(WithoutRootFields, LeavesABlockWithoutThem)
{
    EXPECT_EQ(withoutRootFields(evenBlock(), addedTags()), evenBlock());
    EXPECT_EQ(withoutRootFields("damaged", addedTags()), "damaged");
}

TEST(RootFields, StandDamageAnywhere)
{
    const QByteArray block = withRootFields(
        exifBlock({.orientation = 6, .make = "Brand", .thumbnail = "picture"}), captionFields()
    );
    for (qsizetype place = 0; place < block.size(); ++place) {
        for (const char value : {'\0', '\x01', '\x7F', '\xFF'}) {
            QByteArray changed = block;
            changed[place] = value;

            const QByteArray edited
                = withRootFields(withoutRootFields(changed, addedTags()), captionFields());

            EXPECT_LE(edited.size(), 3 * block.size());
        }
    }
}
