// SPDX-License-Identifier: GPL-3.0-or-later
#include "jpeg_segments.h"

#include "bytes.h"

namespace brenvaldo::platform::containers {

namespace {

constexpr std::uint8_t startOfScan = 0xDA;
constexpr std::uint8_t endOfImage = 0xD9;

bool isStandalone(std::uint8_t marker)
{
    return marker == 0x01 || (marker >= 0xD0 && marker <= 0xD8);
}

/// The offset of the next marker's 0xFF from `offset` on; fill bytes and stray bytes are passed
/// over.
qsizetype nextMarker(QByteArrayView file, qsizetype offset)
{
    while (offset + 1 < file.size()) {
        const auto prefix = static_cast<std::uint8_t>(file[offset]);
        const auto marker = static_cast<std::uint8_t>(file[offset + 1]);
        if (prefix == 0xFF && marker != 0xFF && marker != 0)
            return offset;
        ++offset;
    }
    return file.size();
}

bool startsAsTiff(QByteArrayView bytes) { return bytes.startsWith("II") || bytes.startsWith("MM"); }

} // namespace

std::optional<JpegHeader> readJpegHeader(QByteArrayView file)
{
    if (!file.startsWith("\xFF\xD8"))
        return std::nullopt;

    JpegHeader header{.segments = {}, .end = 2};
    qsizetype offset = 2;
    while ((offset = nextMarker(file, offset)) < file.size()) {
        const auto marker = static_cast<std::uint8_t>(file[offset + 1]);
        if (isStandalone(marker)) {
            offset += 2;
            continue;
        }
        if (marker == startOfScan || marker == endOfImage)
            break;
        const auto start = static_cast<std::uint64_t>(offset);
        const auto length = unsignedAt(file, start + 2, 2, ByteOrder::Big);
        if (!length || *length < 2)
            break;
        const auto payload = sliceOf(file, start + 4, *length - 2);
        if (!payload)
            break;
        header.segments.append(
            {.marker = marker, .payload = *payload, .whole = *sliceOf(file, start, 2 + *length)}
        );
        offset += static_cast<qsizetype>(2 + *length);
        header.end = offset;
    }
    return header;
}

std::optional<QByteArrayView> exifPartOf(const JpegSegment& segment, QByteArrayView block)
{
    // The sixth byte is not zero in the files of some programs.
    if (segment.marker != jpeg::app1 || segment.payload.size() < jpeg::exifHeader.size()
        || !segment.payload.startsWith(jpeg::exifHeader.first(5)))
        return std::nullopt;
    const QByteArrayView data = segment.payload.sliced(jpeg::exifHeader.size());
    // A block above 64 KB goes on in segments that do not open a block of their own.
    if (!block.isEmpty() && startsAsTiff(data))
        return std::nullopt;
    return data;
}

QByteArray jpegExif(const JpegHeader& header)
{
    QByteArray block;
    for (const JpegSegment& segment : header.segments)
        block.append(exifPartOf(segment, block).value_or(QByteArrayView()));
    return block;
}

QByteArray jpegSegment(std::uint8_t marker, QByteArrayView payload)
{
    QByteArray segment;
    segment.reserve(4 + payload.size());
    segment.append('\xFF');
    segment.append(static_cast<char>(marker));
    appendUnsigned(segment, static_cast<std::uint64_t>(payload.size() + 2), 2, ByteOrder::Big);
    segment.append(payload);
    return segment;
}

} // namespace brenvaldo::platform::containers
