// SPDX-License-Identifier: GPL-3.0-or-later
#include "tiff_blocks.h"

#include "block_readers.h"
#include "exif_directories.h"
#include "exif_thumbnail.h"

#include <platform/containers/photoshop_resources.h>

#include <algorithm>

namespace brenvaldo::platform::metadata {

namespace tiff = containers::tiff;
using containers::fieldOf;
using containers::TiffDirectory;

namespace {

/// True for a directory that holds a JPEG and no picture that a TIFF reader knows.
bool describesThumbnail(const TiffDirectory& directory)
{
    return fieldOf(directory, tiff::ThumbnailOffset) && fieldOf(directory, tiff::ThumbnailLength)
        && !fieldOf(directory, tiff::StripOffsets) && !fieldOf(directory, tiff::TileOffsets);
}

/// Takes the resource that keeps nothing but a thumbnail out of `photoshop`.
QByteArray takeThumbnailResource(QByteArray& photoshop)
{
    const QList<containers::PhotoshopResource> resources
        = containers::photoshopResources(photoshop);
    if (resources.isEmpty()
        || resources.first().id
            != static_cast<std::uint16_t>(containers::PhotoshopResourceId::Exif))
        return {};
    const QByteArray data = resources.first().data.toByteArray();
    const auto block = containers::TiffFile::open(data);
    if (!block || !block->firstDirectory().isEmpty() || block->secondOffset() == 0)
        return {};
    photoshop.remove(0, resources.first().whole.size());
    return data;
}

} // namespace

QByteArray blockOf(const TiffDirectory& directory, std::uint16_t tag)
{
    const containers::TiffField* field = fieldOf(directory, tag);
    return field ? QByteArray(field->value.constData(), field->value.size()) : QByteArray();
}

/// IIM data sets that a program has stored as numbers of the other byte order come out in order.
QByteArray iptcOf(const TiffDirectory& directory)
{
    constexpr qsizetype word = 4;
    constexpr char dataSetMarker = '\x1C';
    QByteArray iptc = blockOf(directory, tiff::Iptc);
    const bool isTurned = iptc.size() >= word && iptc.size() % word == 0 && iptc[0] != dataSetMarker
        && iptc[word - 1] == dataSetMarker;
    for (qsizetype start = 0; isTurned && start < iptc.size(); start += word)
        std::reverse(iptc.begin() + start, iptc.begin() + start + word);
    return containers::withoutIptcPadding(iptc);
}

void setBlock(TiffDirectory& directory, std::uint16_t tag, const QByteArray& block)
{
    if (!block.isEmpty())
        containers::replace(directory, {.tag = tag, .type = tiff::Byte, .value = block});
}

containers::MetadataBlocks readTiffBlocks(QByteArrayView bytes)
{
    containers::MetadataBlocks blocks;
    const auto file = containers::TiffFile::open(bytes);
    if (!file)
        return blocks;
    const TiffDirectory image = file->firstDirectory();
    blocks.xmp = blockOf(image, tiff::Xmp);
    blocks.photoshop = blockOf(image, tiff::PhotoshopResources);
    blocks.iptc = iptcOf(image);
    if (blocks.iptc.isEmpty())
        blocks.iptc = containers::photoshopResourceData(
            blocks.photoshop, containers::PhotoshopResourceId::Iptc
        );

    blocks.exif = serializedExif(exifDirectoriesOf(*file));
    const QByteArray thumbnail = takeThumbnailResource(blocks.photoshop);
    if (!thumbnail.isEmpty())
        blocks.exif = withThumbnailOf(thumbnail, blocks.exif);
    else if (describesThumbnail(file->secondDirectory()))
        blocks.exif = withThumbnailOf(bytes, blocks.exif);
    return blocks;
}

} // namespace brenvaldo::platform::metadata
