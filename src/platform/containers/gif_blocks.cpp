// SPDX-License-Identifier: GPL-3.0-or-later
#include "gif_blocks.h"

#include "bytes.h"

namespace brenvaldo::platform::containers {

namespace {

constexpr std::uint64_t headerLength = 13;
constexpr std::uint64_t flagsAt = 10;
constexpr std::uint64_t paletteFlag = 0x80;

std::uint64_t gifByteAt(QByteArrayView file, std::uint64_t offset)
{
    return unsignedAt(file, offset, 1, ByteOrder::Little).value_or(0);
}

/// Length in bytes of the palette that the flags announce.
std::uint64_t paletteLength(std::uint64_t flags)
{
    return (flags & paletteFlag) == 0 ? 0 : 3ULL << ((flags & 7U) + 1);
}

/// The offset behind the data blocks that start at `offset`.
std::uint64_t dataBlocksEnd(QByteArrayView file, std::uint64_t offset)
{
    while (const std::uint64_t length = gifByteAt(file, offset))
        offset += 1 + length;
    return offset + 1;
}

} // namespace

bool hasGlobalPalette(QByteArrayView file) { return (gifByteAt(file, flagsAt) & paletteFlag) != 0; }

QList<GifExtension> readGifExtensions(QByteArrayView file)
{
    constexpr std::uint64_t extensionIntroducer = 0x21;
    constexpr std::uint64_t imageSeparator = 0x2C;
    QList<GifExtension> extensions;
    std::uint64_t offset = headerLength + paletteLength(gifByteAt(file, flagsAt));
    while (offset < static_cast<std::uint64_t>(file.size())) {
        const std::uint64_t kind = gifByteAt(file, offset);
        if (kind == extensionIntroducer) {
            const std::uint64_t end = dataBlocksEnd(file, offset + 2);
            const auto dataBlocks = sliceOf(file, offset + 2, end - offset - 2);
            if (!dataBlocks)
                break;
            extensions.append(
                {.label = static_cast<std::uint8_t>(gifByteAt(file, offset + 1)),
                 .dataBlocks = *dataBlocks}
            );
            offset = end;
        } else if (kind == imageSeparator) {
            const std::uint64_t palette = paletteLength(gifByteAt(file, offset + 9));
            offset = dataBlocksEnd(file, offset + 11 + palette);
        } else {
            break;
        }
    }
    return extensions;
}

QByteArray joinedDataBlocks(QByteArrayView dataBlocks)
{
    QByteArray data;
    std::uint64_t offset = 0;
    while (const std::uint64_t length = gifByteAt(dataBlocks, offset)) {
        data.append(sliceOf(dataBlocks, offset + 1, length).value_or(QByteArrayView()));
        offset += 1 + length;
    }
    return data;
}

} // namespace brenvaldo::platform::containers
