// SPDX-License-Identifier: GPL-3.0-or-later
#include "block_readers.h"
#include "exif_directories.h"
#include "photoshop_resources.h"

#include <algorithm>

namespace brenvaldo::platform {

namespace {

QByteArray copiedValue(const TiffDirectory& directory, std::uint16_t tag)
{
    const TiffField* field = fieldOf(directory, tag);
    return field ? QByteArray(field->value.constData(), field->value.size()) : QByteArray();
}

/// IIM data sets that a program has stored as numbers of the other byte order come out in order.
QByteArray iptcOf(const TiffDirectory& directory)
{
    constexpr qsizetype word = 4;
    constexpr char dataSetMarker = '\x1C';
    QByteArray iptc = copiedValue(directory, tiff::Iptc);
    const bool isTurned = iptc.size() >= word && iptc.size() % word == 0 && iptc[0] != dataSetMarker
        && iptc[word - 1] == dataSetMarker;
    for (qsizetype start = 0; isTurned && start < iptc.size(); start += word)
        std::reverse(iptc.begin() + start, iptc.begin() + start + word);
    return withoutIptcPadding(iptc);
}

} // namespace

MetadataBlocks readTiffBlocks(QByteArrayView bytes)
{
    MetadataBlocks blocks;
    const auto file = TiffFile::open(bytes);
    if (!file)
        return blocks;
    const TiffDirectory image = file->firstDirectory();
    blocks.exif = serializedExif(exifDirectoriesOf(*file));
    blocks.xmp = copiedValue(image, tiff::Xmp);
    blocks.photoshop = copiedValue(image, tiff::PhotoshopResources);
    blocks.iptc = iptcOf(image);
    if (blocks.iptc.isEmpty())
        blocks.iptc = photoshopResourceData(blocks.photoshop, PhotoshopResourceId::Iptc);
    return blocks;
}

} // namespace brenvaldo::platform
