// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/graphics/geometry.h>

namespace brenvaldo::panels {
struct ScaleFixView;
struct ScaleMaxView;
} // namespace brenvaldo::panels

namespace brenvaldo::imaging {

/// The maximum mode of resizing.
struct MaximumSettings
{
    int value = 0;
    int type = 0; ///< index of `pubScaleMaxType`

    friend bool operator==(const MaximumSettings&, const MaximumSettings&) = default;
};

/// The fixed mode of resizing.
struct BoxSettings
{
    platform::graphics::PixelSize box;
    int aspectState = 0; ///< state of `cbScaleAspectRatio`

    friend bool operator==(const BoxSettings&, const BoxSettings&) = default;
};

[[nodiscard]] MaximumSettings readSettings(const panels::ScaleMaxView& view);
[[nodiscard]] BoxSettings readSettings(const panels::ScaleFixView& view);

} // namespace brenvaldo::imaging
