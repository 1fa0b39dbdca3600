// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/graphics/color.h>

#include <QString>

#include <cstdint>

namespace brenvaldo::panels {
struct TintPanel;
}

namespace brenvaldo::imaging {

/// The settings of a tint, in the order in which the operation takes them.
struct TintSettings
{
    platform::graphics::Color color;
    int blendIndex = 0;
    int duoToneState = 0;
    int anchor = 0;
    std::int64_t xOffset = 0;
    std::int64_t yOffset = 0;
    QString sizeMode; ///< label of the selected tab of `tbvFrameType`
    std::int64_t width = 0;
    std::int64_t height = 0;
    int originalSizeState = 0;
    std::int64_t percentage = 0;
    std::int64_t pixels = 0;
    int percentageMode = 0;
    int gradientState = 0;
    int angleIndex = 0;
    std::int64_t opacity = 0;

    friend bool operator==(const TintSettings&, const TintSettings&) = default;
};

/// Reads the controls; the colour is opaque.
[[nodiscard]] TintSettings readSettings(const panels::TintPanel& panel);

} // namespace brenvaldo::imaging
