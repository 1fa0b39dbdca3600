// SPDX-License-Identifier: GPL-3.0-or-later
#include "block_readers.h"

#include <platform/containers/bytes.h>

namespace brenvaldo::platform::metadata {

using containers::MetadataBlocks;
using containers::sliceOf;

namespace {

constexpr std::uint64_t extensionIntroducer = 0x21;
constexpr std::uint64_t imageSeparator = 0x2C;
constexpr std::uint64_t commentLabel = 0xFE;
constexpr std::uint64_t applicationLabel = 0xFF;
/// Bytes behind an XMP packet that lead a reader of data blocks to their end.
constexpr std::uint64_t xmpTrailerLength = 258;

std::uint64_t byteAt(QByteArrayView file, std::uint64_t offset)
{
    return containers::unsignedAt(file, offset, 1, containers::ByteOrder::Little).value_or(0);
}

/// Length in bytes of the palette that the flags announce.
std::uint64_t paletteLength(std::uint64_t flags)
{
    return (flags & 0x80U) == 0 ? 0 : 3ULL << ((flags & 7U) + 1);
}

/// The offset behind the data blocks that start at `offset`.
std::uint64_t dataBlocksEnd(QByteArrayView file, std::uint64_t offset)
{
    while (const std::uint64_t length = byteAt(file, offset))
        offset += 1 + length;
    return offset + 1;
}

QByteArray joinedDataBlocks(QByteArrayView file, std::uint64_t offset)
{
    QByteArray data;
    while (const std::uint64_t length = byteAt(file, offset)) {
        data.append(sliceOf(file, offset + 1, length).value_or(QByteArrayView()));
        offset += 1 + length;
    }
    return data;
}

void takeExtension(
    QByteArrayView file, std::uint64_t label, std::uint64_t offset, MetadataBlocks& blocks
)
{
    if (label == commentLabel && blocks.comment.isEmpty())
        blocks.comment = joinedDataBlocks(file, offset);
    const auto application = sliceOf(file, offset, 12);
    if (label != applicationLabel || application != QByteArrayView("\x0BXMP DataXMP"))
        return;
    const std::uint64_t start = offset + 12;
    const std::uint64_t end = dataBlocksEnd(file, start);
    if (end < start + xmpTrailerLength)
        return;
    const auto packet = sliceOf(file, start, end - start - xmpTrailerLength);
    if (packet && blocks.xmp.isEmpty())
        blocks.xmp = packet->toByteArray();
}

} // namespace

MetadataBlocks readGifBlocks(QByteArrayView file)
{
    MetadataBlocks blocks;
    std::uint64_t offset = 13 + paletteLength(byteAt(file, 10));
    while (offset < static_cast<std::uint64_t>(file.size())) {
        const std::uint64_t kind = byteAt(file, offset);
        if (kind == extensionIntroducer) {
            takeExtension(file, byteAt(file, offset + 1), offset + 2, blocks);
            offset = dataBlocksEnd(file, offset + 2);
        } else if (kind == imageSeparator) {
            const std::uint64_t palette = paletteLength(byteAt(file, offset + 9));
            offset = dataBlocksEnd(file, offset + 11 + palette);
        } else {
            break;
        }
    }
    return blocks;
}

} // namespace brenvaldo::platform::metadata
