// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/graphics/color.h>

namespace brenvaldo::panels {
struct RotatePanel;
}

namespace brenvaldo::imaging {

/// The settings of a rotation.
struct RotateSettings
{
    float degrees = 0; ///< counter-clockwise
    bool hasCanvas = false; ///< the turned photo lies on a coloured canvas
    platform::graphics::Color canvasColor;
    int canvasMargin = 0; ///< pixels on every side

    friend bool operator==(const RotateSettings&, const RotateSettings&) = default;
};

[[nodiscard]] RotateSettings readSettings(const panels::RotatePanel& panel);

} // namespace brenvaldo::imaging
