// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/graphics/color.h>

#include <cstdint>

namespace brenvaldo::panels {
struct RoundingsPanel;
}

namespace brenvaldo::imaging {

/// The settings of rounded corners. Lengths are pixels.
struct RoundingSettings
{
    std::int64_t radius = 0; ///< of the corners
    int type = 0; ///< index of `pubRCType`
    platform::graphics::Color borderColor = {};
    platform::graphics::Color backgroundColor = {};
    int borderState = 0;
    std::int64_t borderWidth = 0;
    int backgroundState = 0;
    std::int64_t opacity = 0; ///< of the border, in percent
    int gradientState = 0;
    int angleIndex = 0; ///< of `pubRCGradientAngle`
    int blendIndex = 0; ///< of `pubRCRenderMethod`
    int borderPosition = 0; ///< index of `pubRCBorderPos`
    std::int64_t margin = 0; ///< of the background around the canvas

    friend bool operator==(const RoundingSettings&, const RoundingSettings&) = default;
};

/// Reads the controls; the colours are opaque.
[[nodiscard]] RoundingSettings readSettings(const panels::RoundingsPanel& panel);

} // namespace brenvaldo::imaging
