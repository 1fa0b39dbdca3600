// SPDX-License-Identifier: GPL-3.0-or-later
#include "exif_thumbnail.h"

#include <platform/containers/tiff_directory.h>

#include <algorithm>
#include <array>

namespace brenvaldo::platform::metadata {

namespace tiff = containers::tiff;
using containers::ByteOrder;
using containers::serializedDirectory;
using containers::TiffDirectory;
using containers::TiffField;
using containers::TiffFile;
using containers::tiffHeaderLength;

namespace {

constexpr std::uint64_t entryLength = 12;

/// The two fields that tell where a kind of picture stands.
struct PictureTags
{
    std::uint16_t offsets = 0;
    std::uint16_t lengths = 0;
};

constexpr std::array pictureTags{
    PictureTags{tiff::ThumbnailOffset, tiff::ThumbnailLength},
    PictureTags{tiff::StripOffsets, tiff::StripLengths},
};

struct Range
{
    std::uint64_t offset = 0;
    std::uint64_t length = 0;
};

/// The pieces of the picture that `tags` describe.
QList<Range> pictureRanges(const TiffDirectory& directory, PictureTags tags, ByteOrder order)
{
    const TiffField* offsetField = containers::fieldOf(directory, tags.offsets);
    const TiffField* lengthField = containers::fieldOf(directory, tags.lengths);
    if (!offsetField || !lengthField)
        return {};
    const QList<std::uint64_t> offsets = containers::unsignedValues(*offsetField, order);
    const QList<std::uint64_t> lengths = containers::unsignedValues(*lengthField, order);
    QList<Range> ranges;
    for (qsizetype i = 0; i < std::min(offsets.size(), lengths.size()); ++i)
        ranges.append({.offset = offsets[i], .length = lengths[i]});
    return ranges;
}

/// The directory of the thumbnail, its long values and its picture.
QList<Range> thumbnailRanges(const TiffFile& file, std::uint64_t entryCount)
{
    const TiffDirectory directory = file.secondDirectory();
    QList<Range> ranges{{.offset = file.secondOffset(), .length = 2 + entryCount * entryLength}};
    for (const TiffField& field : directory)
        ranges.append(
            {.offset = field.valueOffset, .length = static_cast<std::uint64_t>(field.value.size())}
        );
    for (const PictureTags tags : pictureTags)
        ranges += pictureRanges(directory, tags, file.order());
    return ranges;
}

/// Copies what stands at `range` to the same place.
void copyRange(QByteArray& to, QByteArrayView from, const Range& range)
{
    const auto bytes = containers::sliceOf(from, range.offset, range.length);
    if (!bytes || range.offset < tiffHeaderLength)
        return;
    const auto place = static_cast<qsizetype>(range.offset);
    if (to.size() < place + bytes->size())
        to.resize(place + bytes->size(), '\0');
    std::copy(bytes->begin(), bytes->end(), to.begin() + place);
}

void padToEven(QByteArray& block)
{
    if (block.size() % 2 != 0)
        block.append('\0');
}

QByteArray emptyBlock(ByteOrder order)
{
    QByteArray block = containers::tiffHeader(order, tiffHeaderLength);
    block.append(serializedDirectory({}, tiffHeaderLength, order));
    return block;
}

/// Pictures in one piece, and where those of each field start in it.
struct Pictures
{
    QByteArray bytes;
    QList<std::pair<std::uint16_t, QList<std::uint64_t>>> starts;
};

/// Left out: pictures that lie outside of `source`, or are longer than it.
Pictures picturesOf(const TiffDirectory& directory, ByteOrder order, QByteArrayView source)
{
    Pictures pictures;
    for (const PictureTags tags : pictureTags) {
        QByteArray bytes;
        QList<std::uint64_t> starts;
        const QList<Range> ranges = pictureRanges(directory, tags, order);
        for (const Range& range : ranges) {
            const auto piece = containers::sliceOf(source, range.offset, range.length);
            if (!piece || bytes.size() + piece->size() > source.size())
                break;
            starts.append(static_cast<std::uint64_t>(pictures.bytes.size() + bytes.size()));
            bytes.append(*piece);
            padToEven(bytes);
        }
        if (starts.isEmpty() || starts.size() < ranges.size())
            continue;
        pictures.bytes.append(bytes);
        pictures.starts.append({tags.offsets, starts});
    }
    return pictures;
}

/// Tells the directory that the pictures stand from `base` on.
void setOffsets(
    TiffDirectory& directory, const Pictures& pictures, std::uint64_t base, ByteOrder order
)
{
    for (auto [tag, offsets] : pictures.starts) {
        for (std::uint64_t& offset : offsets)
            offset += base;
        containers::replace(directory, containers::longField(tag, offsets, order));
    }
}

} // namespace

QByteArray thumbnailAlone(QByteArrayView exif)
{
    const auto file = TiffFile::open(exif);
    if (!file || file->isBig() || file->secondDirectory().isEmpty())
        return {};
    const std::uint64_t offset = file->secondOffset();
    const auto count = containers::unsignedAt(exif, offset, 2, file->order());

    QByteArray block(tiffHeaderLength, '\0');
    // Ranges of an honest block do not overlap, but for a value that is the picture as well.
    auto budget = 2 * static_cast<std::uint64_t>(exif.size());
    for (const Range& range : thumbnailRanges(*file, count.value_or(0))) {
        if (range.length > budget)
            break;
        budget -= range.length;
        copyRange(block, exif, range);
    }
    block.append(4, '\0'); // no third directory, should the second stand last
    padToEven(block);
    block.replace(
        0,
        tiffHeaderLength,
        containers::tiffHeader(file->order(), static_cast<std::uint64_t>(block.size()))
    );
    containers::appendUnsigned(block, 0, 2, file->order());
    containers::appendUnsigned(block, offset, 4, file->order());
    return block;
}

QByteArray withThumbnailOf(QByteArrayView source, const QByteArray& exif)
{
    const auto file = TiffFile::open(source);
    if (!file || file->isBig() || file->secondDirectory().isEmpty())
        return exif;
    QByteArray block = exif.isEmpty() ? emptyBlock(file->order()) : exif;
    padToEven(block);
    const auto target = TiffFile::open(block);
    const auto start = static_cast<std::uint64_t>(block.size());
    if (!target || target->isBig() || !containers::setSecondOffset(block, start))
        return exif;

    const ByteOrder order = target->order();
    TiffDirectory directory = file->secondDirectory();
    const Pictures pictures = picturesOf(directory, file->order(), source);
    if (order != file->order())
        directory = containers::swapped(directory);
    setOffsets(directory, pictures, 0, order);
    const auto length
        = static_cast<std::uint64_t>(serializedDirectory(directory, start, order).size());
    setOffsets(directory, pictures, start + length, order);
    return block + serializedDirectory(directory, start, order) + pictures.bytes;
}

} // namespace brenvaldo::platform::metadata
