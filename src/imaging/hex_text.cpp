// SPDX-License-Identifier: GPL-3.0-or-later
#include "hex_text.h"

#include <platform/foundation/literals.h>
#include <platform/foundation/numbers.h>

namespace brenvaldo::imaging {

namespace {

QString twoDigits(double component)
{
    const auto byte = static_cast<std::uint32_t>(platform::truncated(component * 255.0));
    return u"%1"_s.arg(byte, 2, 16, QLatin1Char('0')).toUpper();
}

} // namespace

HexBytes hexBytes(std::uint32_t number)
{
    const auto byteAt
        = [number](unsigned shift) { return static_cast<int>((number >> shift) & 0xFFU); };
    return {.red = byteAt(16), .green = byteAt(8), .blue = byteAt(0)};
}

QString hexText(const platform::graphics::Color& color)
{
    return twoDigits(color.red) + twoDigits(color.green) + twoDigits(color.blue);
}

} // namespace brenvaldo::imaging
