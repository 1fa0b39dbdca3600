// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstdint>
#include <span>

namespace brenvaldo::platform::metadata {

/// How the value of a tag becomes a property.
enum class ExifRule {
    Plain, ///< one number or text as it is, several numbers as an array
    Array, ///< an array even for one number
    FirstByte, ///< the first byte as an integer
    Version, ///< four digits: the first two as one number, the third, the fourth unless it is 0
    Comment, ///< a text with its character code in front
    Degrees, ///< degrees, minutes and seconds as degrees
    TimeOfDay ///< hours, minutes and seconds as "hh:mm:ss"
};

struct ExifRow
{
    const char* key = nullptr; ///< of the property
    std::uint16_t tag = 0;
    ExifRule rule = ExifRule::Plain;
};

/// The tags of each property dictionary in the order of its keys.
[[nodiscard]] std::span<const ExifRow> exifTable();
[[nodiscard]] std::span<const ExifRow> tiffTable();
[[nodiscard]] std::span<const ExifRow> gpsTable();

} // namespace brenvaldo::platform::metadata
