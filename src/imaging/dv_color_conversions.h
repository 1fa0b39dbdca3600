// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/graphics/color.h>

namespace brenvaldo::imaging {

/// The operations on the colours of a photo.
class DVColorConversions
{
public:
    /// The drawing colour of a control's colour: the same components in the same colour space.
    [[nodiscard]] static platform::graphics::Color
    NSColorToCGColor(const platform::graphics::Color& color)
    {
        return color;
    }
};

} // namespace brenvaldo::imaging
