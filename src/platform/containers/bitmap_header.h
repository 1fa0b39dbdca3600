// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>

#include <cstdint>
#include <optional>

namespace brenvaldo::platform::containers {

/// Dots per inch, whole.
struct BitmapResolution
{
    double horizontal = 0;
    double vertical = 0;
};

enum class BitmapCompression : std::uint32_t {
    None = 0,
    RunsOfBytes = 1,
    RunsOfNibbles = 2,
    BitFields = 3
};

/// What stands before the pixels of a bitmap file. Offsets count from the start of the file.
struct BitmapHeader
{
    std::uint64_t pixelsAt = 0;
    int bitsPerPixel = 0;
    BitmapCompression compression = BitmapCompression::None; ///< unknown values stand as they are
    std::optional<BitmapResolution> resolution = {}; ///< stated for both directions or not at all
    std::uint64_t paletteAt = 0;
    int paletteEntrySize = 4; ///< blue, green and red come first
    std::uint64_t profileAt = 0;
    std::uint64_t profileSize = 0; ///< 0 without an embedded profile

    /// True when the pixels are numbers of colours in the palette.
    [[nodiscard]] bool isIndexed() const { return bitsPerPixel > 0 && bitsPerPixel <= 8; }
};

/// Reads the start of a bitmap file. Fields that it is too short for are 0.
[[nodiscard]] BitmapHeader readBitmapHeader(QByteArrayView file);

} // namespace brenvaldo::platform::containers
