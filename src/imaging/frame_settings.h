// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/graphics/color.h>

#include <cstdint>

namespace brenvaldo::panels {
struct FramingPanel;
}

namespace brenvaldo::imaging {

/// The settings of a frame.
struct FrameSettings
{
    int frameType = 0; ///< index of `pubFramingType`
    std::int64_t thickness = 0; ///< pixels
    std::int64_t inset = 0; ///< pixels from the photo's edge, of a frame inside of it
    std::int64_t opacity = 0; ///< percent
    int blendIndex = 0; ///< of `pubFramingRenderMethod`
    int gradientState = 0;
    int angleIndex = 0; ///< of `pubFramingGradientAngle`
    platform::graphics::Color color = {};

    friend bool operator==(const FrameSettings&, const FrameSettings&) = default;
};

/// Reads the controls; the colour is opaque.
[[nodiscard]] FrameSettings readSettings(const panels::FramingPanel& panel);

} // namespace brenvaldo::imaging
