// SPDX-License-Identifier: GPL-3.0-or-later
#include "psd_file.h"

#include <platform/containers/bytes.h>
#include <platform/containers/photoshop_file.h>
#include <platform/containers/photoshop_resources.h>

#include <vips/vips8>

#include <algorithm>
#include <array>

namespace brenvaldo::platform::codecs {

using containers::ByteOrder;
using containers::unsignedAt;

namespace {

std::uint64_t field(QByteArrayView file, std::uint64_t offset, int width)
{
    const auto value = unsignedAt(file, offset, width, ByteOrder::Big);
    if (!value)
        throw vips::VError("the layered picture is truncated");
    return *value;
}

bool isKnownMode(std::uint64_t mode)
{
    constexpr std::array known{
        PsdMode::Bitmap,
        PsdMode::Gray,
        PsdMode::Indexed,
        PsdMode::Rgb,
        PsdMode::Cmyk,
        PsdMode::Duotone,
        PsdMode::Lab};
    return std::any_of(known.begin(), known.end(), [mode](PsdMode one) {
        return static_cast<std::uint64_t>(one) == mode;
    });
}

bool hasDepthOfItsMode(const PsdFile& file)
{
    if (file.mode == PsdMode::Bitmap)
        return file.bitsPerSample == 1;
    if (file.mode == PsdMode::Indexed)
        return file.bitsPerSample == 8;
    return file.bitsPerSample == 8 || file.bitsPerSample == 16;
}

PsdFile readHeader(QByteArrayView bytes)
{
    PsdFile file;
    file.isLarge = containers::isLargePhotoshopFile(bytes);
    file.channels = static_cast<int>(field(bytes, 12, 2));
    file.size.height = static_cast<int>(field(bytes, 14, 4));
    file.size.width = static_cast<int>(field(bytes, 18, 4));
    file.bitsPerSample = static_cast<int>(field(bytes, 22, 2));
    const std::uint64_t mode = field(bytes, 24, 2);
    if (!isKnownMode(mode))
        throw vips::VError("the layered picture has an unknown colour mode");
    file.mode = static_cast<PsdMode>(mode);
    if (!hasDepthOfItsMode(file) || file.channels < psdColorChannels(file.mode))
        throw vips::VError("the layered picture has an unknown depth or lacks channels");
    return file;
}

/// A negative number of layers says that the first mask is the transparency of them all.
bool saysThatFirstMaskIsAlpha(QByteArrayView layers, bool isLarge)
{
    const auto count = unsignedAt(layers, isLarge ? 8 : 4, 2, ByteOrder::Big);
    return count && static_cast<std::int16_t>(*count) < 0;
}

/// Files that were saved without one say so; what stands in its place is white.
bool hasMergedPicture(QByteArrayView resources)
{
    const QByteArray info = containers::photoshopResourceData(
        resources, containers::PhotoshopResourceId::VersionInfo
    );
    return unsignedAt(info, 4, 1, ByteOrder::Big).value_or(1) != 0;
}

} // namespace

int psdColorChannels(PsdMode mode)
{
    switch (mode) {
    case PsdMode::Rgb:
    case PsdMode::Lab:
        return 3;
    case PsdMode::Cmyk:
        return 4;
    default:
        return 1;
    }
}

PsdFile readPsdFile(QByteArrayView bytes)
{
    PsdFile file = readHeader(bytes);
    const auto sections = containers::photoshopSections(bytes);
    if (!sections || !sections->layers)
        throw vips::VError("the layered picture is truncated");
    file.resources = sections->resources;

    constexpr std::uint64_t paletteLength = 768; // 256 reds, greens and blues
    if (file.mode == PsdMode::Indexed) {
        const auto palette = containers::sliceOf(sections->colors, 0, paletteLength);
        if (!palette)
            throw vips::VError("the layered picture lacks its palette");
        file.palette = *palette;
    }
    if (!hasMergedPicture(file.resources))
        throw vips::VError("the layers were saved without a merged picture");
    file.firstMaskIsAlpha = file.mode != PsdMode::Bitmap
        && file.channels > psdColorChannels(file.mode)
        && saysThatFirstMaskIsAlpha(*sections->layers, file.isLarge);
    const std::uint64_t compression = field(sections->picture, 0, 2);
    if (compression > static_cast<std::uint64_t>(PsdCompression::RunLengths))
        throw vips::VError("the layered picture has an unknown compression");
    file.compression = static_cast<PsdCompression>(compression);
    file.samples = sections->picture.sliced(2);
    return file;
}

} // namespace brenvaldo::platform::codecs
