// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace brenvaldo::platform::graphics {

/// A colour in the calibrated (sRGB) space; components and alpha from 0 to 1, not premultiplied.
struct Color
{
    double red = 0;
    double green = 0;
    double blue = 0;
    double alpha = 1;

    [[nodiscard]] Color withAlpha(double value) const { return {red, green, blue, value}; }

    friend bool operator==(const Color&, const Color&) = default;
};

} // namespace brenvaldo::platform::graphics
