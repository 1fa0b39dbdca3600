// SPDX-License-Identifier: GPL-3.0-or-later
#include "bitmap_header.h"

#include "bytes.h"

#include <platform/foundation/inches.h>

#include <cmath>

namespace brenvaldo::platform::containers {

namespace {

constexpr std::uint64_t infoAt = 14; // behind the header of the file

std::uint64_t infoField(QByteArrayView file, std::uint64_t offset, int width)
{
    return unsignedAt(file, infoAt + offset, width, ByteOrder::Little).value_or(0);
}

/// Dots per inch; negative numbers state nothing, as 0 does.
double resolutionAt(QByteArrayView file, std::uint64_t offset)
{
    const auto perMetre = static_cast<std::int32_t>(infoField(file, offset, 4));
    return perMetre > 0 ? std::round(perMetre * metresPerInch) : 0;
}

std::optional<BitmapResolution> resolutionOf(QByteArrayView file)
{
    const BitmapResolution resolution{
        .horizontal = resolutionAt(file, 24), .vertical = resolutionAt(file, 28)};
    const bool isWhole = resolution.horizontal > 0 && resolution.vertical > 0;
    return isWhole ? std::optional(resolution) : std::nullopt;
}

/// The newest form of the header alone has a profile.
void readProfilePlace(QByteArrayView file, BitmapHeader& header)
{
    constexpr std::uint64_t embedded = 0x4D424544; // "MBED"
    if (infoField(file, 56, 4) != embedded)
        return;
    header.profileAt = infoAt + infoField(file, 112, 4);
    header.profileSize = infoField(file, 116, 4);
}

void readFieldsOfToday(QByteArrayView file, std::uint64_t infoSize, BitmapHeader& header)
{
    constexpr std::uint64_t newestInfoSize = 124;
    header.bitsPerPixel = static_cast<int>(infoField(file, 14, 2));
    header.compression = static_cast<BitmapCompression>(infoField(file, 16, 4));
    header.resolution = resolutionOf(file);
    if (infoSize >= newestInfoSize)
        readProfilePlace(file, header);
}

} // namespace

BitmapHeader readBitmapHeader(QByteArrayView file)
{
    constexpr std::uint64_t oldInfoSize = 12;
    const std::uint64_t infoSize = infoField(file, 0, 4);
    BitmapHeader header;
    header.pixelsAt = unsignedAt(file, 10, 4, ByteOrder::Little).value_or(0);
    header.paletteAt = infoAt + infoSize;
    if (infoSize == oldInfoSize) {
        header.bitsPerPixel = static_cast<int>(infoField(file, 10, 2));
        header.paletteEntrySize = 3;
    } else {
        readFieldsOfToday(file, infoSize, header);
    }
    return header;
}

} // namespace brenvaldo::platform::containers
