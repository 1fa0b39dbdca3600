// SPDX-License-Identifier: GPL-3.0-or-later
#include "block_builder.h"

#include <platform/containers/photoshop_resources.h>
#include <platform/metadata/block_readers.h>
#include <platform/metadata/block_splicers.h>
#include <platform/metadata/exif_directories.h>
#include <platform/metadata/exif_thumbnail.h>
#include <platform/metadata/tiff_blocks.h>
#include <support/case_name.h>
#include <support/exif_block.h>
#include <support/photo_builder.h>

#include <gtest/gtest.h>

using namespace brenvaldo::platform::containers;
using namespace brenvaldo::platform::metadata;
using namespace brenvaldo::test;

namespace {

QByteArray thumbnailBytes() { return "\xFF\xD8\xFF a small picture of odd length"; }

QByteArray blockWithThumbnail()
{
    return exifBlock({.make = "Brand", .makerNote = "a note", .thumbnail = thumbnailBytes()});
}

/// The JPEG that the second directory of `bytes` points to.
QByteArray thumbnailOf(QByteArrayView bytes)
{
    const auto file = TiffFile::open(bytes);
    const TiffDirectory directory = file ? file->secondDirectory() : TiffDirectory();
    const TiffField* offset = fieldOf(directory, tiff::ThumbnailOffset);
    const TiffField* length = fieldOf(directory, tiff::ThumbnailLength);
    if (!offset || !length)
        return {};
    return sliceOf(
               bytes,
               unsignedValues(*offset, file->order()).value(0),
               unsignedValues(*length, file->order()).value(0)
    )
        .value_or(QByteArrayView())
        .toByteArray();
}

QByteArray tiffOfDepth(int depth)
{
    return PhotoBuilder{}.format(PhotoFormat::Tiff).depth(depth).bytes();
}

QByteArray splicedTiffWith(const QByteArray& exif, int depth = 8)
{
    MetadataBlocks blocks;
    blocks.exif = exif;
    const QByteArray encoded = tiffOfDepth(depth);
    return splicedTiff(encoded, blocks)->join();
}

/// The block in the resource that keeps the thumbnail of a TIFF; empty when there is none.
QByteArray thumbnailResource(const QByteArray& file)
{
    const TiffDirectory image = TiffFile::open(file)->firstDirectory();
    return photoshopResourceData(
        blockOf(image, tiff::PhotoshopResources), PhotoshopResourceId::Exif
    );
}

QByteArray bigEndian(const QByteArray& exif)
{
    return withThumbnailOf(
        exif, serializedExif(inOrder(exifDirectoriesOf(*TiffFile::open(exif)), ByteOrder::Big))
    );
}

/// A block whose thumbnail should stand at `offset`.
QByteArray withBrokenThumbnail(std::uint64_t offset)
{
    QByteArray block = blockWithThumbnail();
    const auto file = TiffFile::open(block);
    const std::uint64_t directory = file->secondOffset();
    QByteArray value;
    appendUnsigned(value, offset, 4, ByteOrder::Little);
    constexpr std::uint64_t secondEntryValue = 2 + 12 + 8;
    return block.replace(static_cast<qsizetype>(directory + secondEntryValue), 4, value);
}

} // namespace

TEST(ThumbnailAlone, HoldsTheSecondDirectoryAtItsOffsets)
{
    const QByteArray exif = blockWithThumbnail();

    const QByteArray alone = thumbnailAlone(exif);

    const auto before = TiffFile::open(exif);
    const auto after = TiffFile::open(alone);
    EXPECT_TRUE(after->firstDirectory().isEmpty());
    EXPECT_EQ(after->secondOffset(), before->secondOffset());
    EXPECT_EQ(after->secondDirectory().size(), before->secondDirectory().size());
    EXPECT_EQ(thumbnailOf(alone), thumbnailBytes());
    EXPECT_FALSE(alone.contains("Brand"));
    EXPECT_FALSE(alone.contains("a note"));
}

TEST(ThumbnailAlone, IsEmptyWithoutAThumbnail)
{
    EXPECT_TRUE(thumbnailAlone(exifBlock({.make = "Brand"})).isEmpty());
    EXPECT_TRUE(thumbnailAlone("no TIFF structure").isEmpty());
    EXPECT_TRUE(thumbnailAlone({}).isEmpty());
}

TEST(ThumbnailAlone, KeepsTheFieldsOfAThumbnailThatIsMissing)
{
    const QByteArray alone = thumbnailAlone(withBrokenThumbnail(0x7FFFFFFF));

    EXPECT_EQ(TiffFile::open(alone)->secondDirectory().size(), 3);
    EXPECT_LE(alone.size(), blockWithThumbnail().size() + 16);
}

TEST(WithThumbnailOf, PutsTheThumbnailBehindABlockWithout)
{
    const QByteArray exif = exifBlock({.make = "Other"});

    const QByteArray block = withThumbnailOf(blockWithThumbnail(), exif);

    EXPECT_EQ(thumbnailOf(block), thumbnailBytes());
    EXPECT_EQ(
        fieldOf(TiffFile::open(block)->firstDirectory(), 271)->value, QByteArray("Other\0", 6)
    );
}

TEST(WithThumbnailOf, MakesABlockForAThumbnailThatStandsAlone)
{
    EXPECT_EQ(thumbnailOf(withThumbnailOf(blockWithThumbnail(), {})), thumbnailBytes());
}

TEST(WithThumbnailOf, LeavesTheBlockWithoutAThumbnail)
{
    const QByteArray exif = exifBlock({.make = "Other"});

    EXPECT_EQ(withThumbnailOf(exifBlock({.make = "Brand"}), exif), exif);
    EXPECT_EQ(withThumbnailOf("no TIFF structure", exif), exif);
    EXPECT_EQ(withThumbnailOf(blockWithThumbnail(), "damaged"), "damaged");
}

TEST(WithThumbnailOf, TurnsTheNumbersIntoTheOrderOfTheBlock)
{
    const QByteArray block = bigEndian(blockWithThumbnail());

    EXPECT_EQ(TiffFile::open(block)->order(), ByteOrder::Big);
    EXPECT_EQ(thumbnailOf(block), thumbnailBytes());
}

TEST(WithThumbnailOf, KeepsTheFieldsOfAThumbnailThatIsMissing)
{
    const QByteArray block = withThumbnailOf(withBrokenThumbnail(0x7FFFFFFF), {});

    EXPECT_EQ(TiffFile::open(block)->secondDirectory().size(), 3);
}

struct OrderCase
{
    const char* name;
    ByteOrder order;
    int depth;

    friend void PrintTo(const OrderCase& row, std::ostream* out) { *out << row.name; }
};

class ThumbnailOfATiff : public testing::TestWithParam<OrderCase>
{
protected:
    static QByteArray exif()
    {
        return GetParam().order == ByteOrder::Big ? bigEndian(blockWithThumbnail())
                                                  : blockWithThumbnail();
    }
};

TEST_P(ThumbnailOfATiff, StandsAtTheSameOffsetInItsResourceAndInTheFile)
{
    const QByteArray file = splicedTiffWith(exif(), GetParam().depth);

    const QByteArray resource = thumbnailResource(file);
    const auto block = TiffFile::open(resource);
    ASSERT_TRUE(block.has_value());
    const TiffDirectory directory = block->secondDirectory();
    const TiffField* offset = fieldOf(directory, tiff::ThumbnailOffset);
    ASSERT_NE(offset, nullptr);
    const auto place = static_cast<qsizetype>(unsignedValues(*offset, block->order()).value(0));
    EXPECT_EQ(resource.mid(place, thumbnailBytes().size()), thumbnailBytes());
    EXPECT_EQ(file.mid(place, thumbnailBytes().size()), thumbnailBytes());
}

TEST_P(ThumbnailOfATiff, IsNoSecondPicture)
{
    EXPECT_EQ(TiffFile::open(splicedTiffWith(exif(), GetParam().depth))->secondOffset(), 0U);
}

TEST_P(ThumbnailOfATiff, ReturnsIntoTheBlock)
{
    const MetadataBlocks read = readTiffBlocks(splicedTiffWith(exif(), GetParam().depth));

    EXPECT_EQ(thumbnailOf(read.exif), thumbnailBytes());
    EXPECT_TRUE(read.photoshop.isEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    Orders,
    ThumbnailOfATiff,
    testing::Values(
        OrderCase{"LittleEndian", ByteOrder::Little, 8},
        OrderCase{"BigEndian", ByteOrder::Big, 8},
        OrderCase{"LittleEndian16", ByteOrder::Little, 16},
        OrderCase{"BigEndian16", ByteOrder::Big, 16}
    ),
    CaseName{}
);

TEST(ThumbnailOfATiff, LeavesTheOtherResourcesAsTheyStand)
{
    MetadataBlocks blocks = cameraBlocks();
    const QByteArray encoded = tiffOfDepth(8);

    const MetadataBlocks read = readTiffBlocks(splicedTiff(encoded, blocks)->join());

    EXPECT_EQ(read.photoshop, blocks.photoshop);
    EXPECT_EQ(thumbnailOf(read.exif), thumbnailOf(blocks.exif));
}

TEST(ThumbnailOfATiff, MakesNoResourceWithoutAThumbnail)
{
    EXPECT_TRUE(thumbnailResource(splicedTiffWith(exifBlock({.make = "Brand"}))).isEmpty());
}

TEST(ThumbnailOfATiff, IsReadFromASecondDirectory)
{
    const QByteArray file = blockWithThumbnail();

    EXPECT_EQ(thumbnailOf(readTiffBlocks(file).exif), thumbnailBytes());
}
