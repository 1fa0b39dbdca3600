// SPDX-License-Identifier: GPL-3.0-or-later
#include "ns_color_handling.h"

#include "hex_text.h"

#include <platform/foundation/numbers.h>

namespace brenvaldo::imaging {

using platform::graphics::Color;

Color cNSColorHandling::colorFromHexRGB(const QString& text)
{
    const HexBytes bytes = hexBytes(platform::scanHexInt(text).value_or(0));
    const auto component
        = [](int byte) { return static_cast<double>(static_cast<float>(byte) / 255.0F); };
    return {
        .red = component(bytes.red),
        .green = component(bytes.green),
        .blue = component(bytes.blue),
    };
}

Color cNSColorHandling::colorFromHexToRGB(const QString& text) { return colorFromHexRGB(text); }

QString cNSColorHandling::hGetHexFromRGB(const Color& color) { return hexText(color); }

} // namespace brenvaldo::imaging
