// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pixel_block.h"

#include <array>

/// \file
/// The sRGB curve between encoded values and linear light. Outside of 0 to 1 it goes on as it does
/// inside; below 0 it is mirrored.

namespace brenvaldo::platform::filters {

[[nodiscard]] double linearOf(double encoded);
[[nodiscard]] double encodedOf(double linear);

/// Linear light of a sample out of 255.
[[nodiscard]] const std::array<float, 256>& linearOfBytes();

void makeLinear(const PixelBlock& encoded, PixelBlock& linear);
void makeEncoded(const PixelBlock& linear, PixelBlock& encoded);

} // namespace brenvaldo::platform::filters
