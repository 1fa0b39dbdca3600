// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/metadata/block_readers.h>
#include <platform/metadata/exif_properties.h>
#include <platform/metadata/iptc_properties.h>
#include <platform/metadata/xmp_packet.h>
#include <platform/metadata/xmp_values.h>

#include <array>

using namespace brenvaldo::platform::containers;
using namespace brenvaldo::platform::metadata;

namespace {

constexpr std::array readers{
    readJpegBlocks,
    readPngBlocks,
    readTiffBlocks,
    readHeifBlocks,
    readJpeg2000Blocks,
    readJpegXlBlocks,
    readWebpBlocks,
    readGifBlocks,
    readPsdBlocks,
};

void readProperties(const MetadataBlocks& blocks)
{
    const auto exif = TiffFile::open(blocks.exif);
    const ExifProperties properties = exif ? exifProperties(*exif) : ExifProperties();
    const XmpValues xmp(completeXmp(blocks));
    static_cast<void>(iptcProperties(blocks.iptc, xmp, properties));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArrayView file(data, static_cast<qsizetype>(size));
    for (const auto& read : readers)
        readProperties(read(file));
    return 0;
}
