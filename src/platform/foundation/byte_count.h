// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <cstdint>

namespace brenvaldo::platform {

/// The size of a file for a reader: "Zero KB", "1 byte", "999 bytes", "6 KB", "5.5 MB", "1.23 GB".
///
/// Units are powers of 1000 and chosen before rounding; KB have no decimals, MB at most one, larger
/// units at most two. Halves round to even. Groups are parted by ",", decimals by ".".
[[nodiscard]] QString byteCountText(std::int64_t bytes);

} // namespace brenvaldo::platform
