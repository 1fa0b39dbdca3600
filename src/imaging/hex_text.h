// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/graphics/color.h>

#include <QString>

#include <cstdint>

namespace brenvaldo::imaging {

/// The three components of a number 0xRRGGBB, each from 0 to 255.
struct HexBytes
{
    int red = 0;
    int green = 0;
    int blue = 0;
};

[[nodiscard]] HexBytes hexBytes(std::uint32_t number);

/// Six hexadecimal digits, upper case: each component times 255, truncated.
[[nodiscard]] QString hexText(const platform::graphics::Color& color);

} // namespace brenvaldo::imaging
