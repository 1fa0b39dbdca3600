// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/graphics/color.h>

namespace brenvaldo::controls {
class TextField;
}

namespace brenvaldo::panels {
struct FilterPanel;
}

namespace brenvaldo::imaging {

/// The settings of the halftone screens.
struct ScreenSettings
{
    float width = 6; ///< of the pattern, in pixels
    float angle = 0; ///< degrees, clockwise
    float centreX = 50; ///< percent of the width
    float centreY = 50; ///< percent of the height, from the bottom
    bool isMask = false;
    bool isInverted = false;
    float sharpness = 0.7F;

    friend bool operator==(const ScreenSettings&, const ScreenSettings&) = default;
};

/// The settings of the filter catalogue; each filter uses some of them.
struct FilterSettings
{
    int number = 0;
    ScreenSettings screen = {};
    float blurRadius = 10;
    platform::graphics::Color color = {};
    float monochromeIntensity = 1;
    float levels = 6;
    float sepiaIntensity = 1;
    float unsharpRadius = 2.5;
    float unsharpIntensity = 0.5;

    friend bool operator==(const FilterSettings&, const FilterSettings&) = default;
};

/// Reads the controls; an empty centre is the middle.
[[nodiscard]] FilterSettings readSettings(const panels::FilterPanel& panel);

/// The percentage in a field of a centre; an empty one means the middle.
[[nodiscard]] float centrePercent(const controls::TextField& field);

} // namespace brenvaldo::imaging
