// SPDX-License-Identifier: GPL-3.0-or-later
#include "block_splicers.h"
#include "exif_directories.h"
#include "exif_thumbnail.h"
#include "tiff_blocks.h"
#include "xmp_packet.h"

#include <platform/containers/photoshop_resources.h>

#include <algorithm>
#include <limits>

namespace brenvaldo::platform::metadata {

namespace tiff = containers::tiff;
using containers::ByteOrder;
using containers::TiffDirectory;
using containers::TiffField;
using containers::TiffFile;

namespace {

constexpr std::uint64_t alignment = 16;

std::uint64_t roundedUp(std::uint64_t value, std::uint64_t unit)
{
    return (value + unit - 1) / unit * unit;
}

/// True when the pixels read the same in either byte order.
bool hasByteSamples(const TiffDirectory& directory, ByteOrder order)
{
    constexpr std::uint64_t bitsOfByte = 8;
    const TiffField* bits = containers::fieldOf(directory, tiff::BitsPerSample);
    if (!bits)
        return true;
    const QList<std::uint64_t> values = containers::unsignedValues(*bits, order);
    return std::all_of(values.begin(), values.end(), [](std::uint64_t value) {
        return value <= bitsOfByte;
    });
}

/// The block in the byte order that the file will have.
QByteArray exifFor(const TiffFile& target, const TiffDirectory& pixels, const QByteArray& exif)
{
    const auto source = TiffFile::open(exif);
    if (!source || source->isBig())
        return {};
    if (source->order() == target.order() || hasByteSamples(pixels, target.order()))
        return exif;
    return withThumbnailOf(
        exif, serializedExif(inOrder(exifDirectoriesOf(*source), target.order()))
    );
}

/// How the encoded file is changed when its pixels move by `shift` bytes.
struct Move
{
    std::uint64_t shift = 0;
    ByteOrder from = ByteOrder::Little;
    ByteOrder to = ByteOrder::Little;
};

TiffDirectory moved(const TiffDirectory& directory, const Move& move)
{
    TiffDirectory result;
    for (const TiffField& field : directory) {
        if (field.tag == tiff::StripOffsets || field.tag == tiff::TileOffsets) {
            QList<std::uint64_t> offsets = containers::unsignedValues(field, move.from);
            for (std::uint64_t& offset : offsets)
                offset += move.shift;
            result.append(containers::longField(field.tag, offsets, move.to));
        } else {
            result.append(move.from == move.to ? field : containers::swapped(field));
        }
    }
    return result;
}

/// The resources with one more that keeps the thumbnail of `exif`.
///
/// A directory of its own would be a second picture to other programs, or one that they can't read.
/// The resource shows it to those that look for metadata alone.
QByteArray withThumbnailResource(const QByteArray& photoshop, const QByteArray& exif)
{
    const QByteArray thumbnail = thumbnailAlone(exif);
    if (thumbnail.isEmpty())
        return photoshop;
    return containers::photoshopResource(containers::PhotoshopResourceId::Exif, thumbnail)
        + photoshop;
}

} // namespace

std::optional<QByteArrayList>
splicedTiff(QByteArrayView encoded, const containers::MetadataBlocks& blocks)
{
    const auto target = TiffFile::open(encoded);
    if (!target || target->isBig())
        return std::nullopt;
    const TiffDirectory pixels = target->firstDirectory();
    const QByteArray exif = exifFor(*target, pixels, blocks.exif);
    const auto source = TiffFile::open(exif);
    const ByteOrder order = source ? source->order() : target->order();

    // The file: header, EXIF block less its header, encoded file less its header, directory.
    const auto exifLength = static_cast<std::uint64_t>(exif.size());
    const std::uint64_t shift
        = exif.isEmpty() ? 0 : roundedUp(exifLength - containers::tiffHeaderLength, alignment);
    const std::uint64_t end = static_cast<std::uint64_t>(encoded.size()) + shift;
    const std::uint64_t directoryOffset = roundedUp(end, 2);

    TiffDirectory directory = moved(pixels, {.shift = shift, .from = target->order(), .to = order});
    if (source) {
        for (const TiffField& field : source->firstDirectory()) {
            if (!describesStorage(field.tag))
                containers::replace(directory, field);
        }
    }
    setBlock(directory, tiff::Xmp, completeXmp(blocks));
    setBlock(directory, tiff::PhotoshopResources, withThumbnailResource(blocks.photoshop, exif));
    setBlock(directory, tiff::Iptc, blocks.iptc);
    const QByteArray tail = QByteArray(static_cast<qsizetype>(directoryOffset - end), '\0')
        + containers::serializedDirectory(directory, directoryOffset, order);
    if (end + static_cast<std::uint64_t>(tail.size()) > std::numeric_limits<std::uint32_t>::max())
        return std::nullopt;

    QByteArray head
        = containers::tiffHeader(order, directoryOffset) + exif.mid(containers::tiffHeaderLength);
    head.resize(static_cast<qsizetype>(containers::tiffHeaderLength + shift), '\0');
    return QByteArrayList{
        head, containers::viewed(containers::tailOf(encoded, containers::tiffHeaderLength)), tail};
}

} // namespace brenvaldo::platform::metadata
