// SPDX-License-Identifier: GPL-3.0-or-later
#include "block_builder.h"

#include <platform/codecs/image_source.h>
#include <platform/containers/exif_facts.h>
#include <platform/metadata/image_file_writer.h>
#include <platform/metadata/metadata_reader.h>
#include <platform/metadata/xmp_values.h>
#include <support/case_name.h>
#include <support/faults.h>
#include <support/iptc_block.h>
#include <support/photo_builder.h>
#include <support/temporary_folder.h>
#include <support/text_printing.h>

#include <gtest/gtest.h>

#include <QDir>

using namespace Qt::StringLiterals;
using namespace brenvaldo::platform::containers;
using namespace brenvaldo::platform::graphics;
using namespace brenvaldo::platform::codecs;
using namespace brenvaldo::platform::metadata;
using brenvaldo::test::cameraBlocks;
using brenvaldo::test::CaseName;
using brenvaldo::test::PhotoBuilder;
using brenvaldo::test::TemporaryFolder;

namespace {

/// The blocks that a file holds after `blocks` were written with a picture into a file of `format`.
MetadataBlocks carried(const MetadataBlocks& blocks, FileFormat format)
{
    const TemporaryFolder folder;
    const QString path = folder.path(u"out"_s);
    const auto source = ImageSource::open(PhotoBuilder{}.write(folder.path(u"source.jpg"_s)));
    const bool written
        = writeImageFile(*source->image(), {.format = format, .metadata = &blocks}, path);
    EXPECT_TRUE(written);
    return readMetadataBlocks(path).value_or(MetadataBlocks());
}

struct Pair
{
    const char* name;
    FileFormat from;
    FileFormat to;

    friend void PrintTo(const Pair& pair, std::ostream* out) { *out << pair.name; }
};

} // namespace

class CarryOver : public testing::TestWithParam<Pair>
{
};

TEST_P(CarryOver, KeepsEveryBlock)
{
    const MetadataBlocks first = carried(cameraBlocks(), GetParam().from);

    const MetadataBlocks second = carried(first, GetParam().to);

    EXPECT_FALSE(second.exif.isEmpty());
    EXPECT_EQ(second.xmp, cameraBlocks().xmp);
    EXPECT_EQ(second.iptc, cameraBlocks().iptc);
    EXPECT_EQ(second.photoshop, cameraBlocks().photoshop);
}

INSTANTIATE_TEST_SUITE_P(
    Containers,
    CarryOver,
    testing::Values(
        Pair{"JpegToJpeg", FileFormat::Jpeg, FileFormat::Jpeg},
        Pair{"JpegToPng", FileFormat::Jpeg, FileFormat::Png},
        Pair{"JpegToTiff", FileFormat::Jpeg, FileFormat::Tiff},
        Pair{"JpegToHeic", FileFormat::Jpeg, FileFormat::Heic},
        Pair{"PngToJpeg", FileFormat::Png, FileFormat::Jpeg},
        Pair{"PngToPng", FileFormat::Png, FileFormat::Png},
        Pair{"PngToTiff", FileFormat::Png, FileFormat::Tiff},
        Pair{"PngToHeic", FileFormat::Png, FileFormat::Heic},
        Pair{"TiffToJpeg", FileFormat::Tiff, FileFormat::Jpeg},
        Pair{"TiffToPng", FileFormat::Tiff, FileFormat::Png},
        Pair{"TiffToTiff", FileFormat::Tiff, FileFormat::Tiff},
        Pair{"TiffToHeic", FileFormat::Tiff, FileFormat::Heic},
        Pair{"HeicToJpeg", FileFormat::Heic, FileFormat::Jpeg},
        Pair{"HeicToPng", FileFormat::Heic, FileFormat::Png},
        Pair{"HeicToTiff", FileFormat::Heic, FileFormat::Tiff},
        Pair{"HeicToHeic", FileFormat::Heic, FileFormat::Heic}
    ),
    CaseName{}
);

TEST(WriteImageFile, KeepsTheExifBlockToTheBitInJpegPngAndHeic)
{
    for (const FileFormat format : {FileFormat::Jpeg, FileFormat::Png, FileFormat::Heic}) {
        MetadataBlocks blocks;
        blocks.exif = cameraBlocks().exif;

        EXPECT_EQ(carried(blocks, format).exif, blocks.exif);
    }
}

TEST(WriteImageFile, KeepsAllValuesOfTheExifBlockInAHeicWithIptc)
{
    const QByteArray before = cameraBlocks().exif;

    const QByteArray after = carried(cameraBlocks(), FileFormat::Heic).exif;

    EXPECT_EQ(after.first(before.size()), before);
    EXPECT_LE(after.size(), before.size() + 1);
}

TEST(WriteImageFile, StatesTheResolutionOfAHeicThatHoldsIptcAlone)
{
    MetadataBlocks blocks;
    blocks.iptc = brenvaldo::test::iptcDataSet(120, "caption");

    const MetadataBlocks read = carried(blocks, FileFormat::Heic);

    EXPECT_EQ(read.iptc, blocks.iptc);
    EXPECT_EQ(readExifFacts(read.exif).dotsPerInch, 72);
}

TEST(WriteImageFile, LetsTheExifBlockNotGrowFromHeicToHeic)
{
    const MetadataBlocks once = carried(cameraBlocks(), FileFormat::Heic);

    const MetadataBlocks thrice = carried(carried(once, FileFormat::Heic), FileFormat::Heic);

    EXPECT_EQ(thrice.exif.size(), once.exif.size());
}

TEST(WriteImageFile, KeepsCommentsAndFurtherSegmentsOfAJpeg)
{
    const MetadataBlocks blocks = carried(cameraBlocks(), FileFormat::Jpeg);

    EXPECT_EQ(blocks.comment, cameraBlocks().comment);
    EXPECT_EQ(blocks.jpegSegments, cameraBlocks().jpegSegments);
}

TEST(WriteImageFile, WritesNoMetadataIntoTheOtherFormats)
{
    for (const FileFormat format : {FileFormat::Bmp, FileFormat::Gif, FileFormat::Jpeg2000}) {
        const MetadataBlocks blocks = carried(cameraBlocks(), format);

        EXPECT_TRUE(blocks.exif.isEmpty());
        EXPECT_TRUE(blocks.xmp.isEmpty());
        EXPECT_TRUE(blocks.iptc.isEmpty());
    }
}

TEST(WriteImageFile, TurnsIptcIntoXmpForAHeicWithoutXmp)
{
    MetadataBlocks blocks;
    blocks.iptc = brenvaldo::test::iptcDataSet(120, "caf\xE9");

    const XmpValues xmp(carried(blocks, FileFormat::Heic).xmp);

    EXPECT_EQ(xmp.texts("Xmp.dc.description"), QStringList(u"caf\u00e9"_s));
}

TEST(WriteImageFile, ReplacesTheFileItReadsFrom)
{
    const TemporaryFolder folder;
    const QString path = PhotoBuilder{}.size(61, 23).write(folder.path(u"a.jpg"_s));
    const auto source = ImageSource::open(path);
    const MetadataBlocks blocks = cameraBlocks();

    const bool written
        = writeImageFile(*source->image(), {.format = FileFormat::Jpeg, .metadata = &blocks}, path);

    EXPECT_TRUE(written);
    EXPECT_EQ(ImageSource::open(path)->header().storedSize, (PixelSize{61, 23}));
    EXPECT_EQ(readMetadataBlocks(path)->exif, blocks.exif);
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 1);
}

TEST(WriteImageFile, LeavesTheOldFileWhenTheDiskIsFull)
{
    const TemporaryFolder folder;
    const QString source = PhotoBuilder{}.size(401, 301).write(folder.path(u"a.jpg"_s));
    const QString target = folder.write(u"b.jpg"_s, "old");
    const MetadataBlocks blocks = cameraBlocks();
    const auto image = ImageSource::open(source)->image();
    bool written = true;
    {
        const brenvaldo::test::FullDisk fullDisk(1000);

        written = writeImageFile(*image, {.format = FileFormat::Jpeg, .metadata = &blocks}, target);
    }

    EXPECT_FALSE(written);
    EXPECT_EQ(TemporaryFolder::read(target), "old");
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).size(), 2);
}
