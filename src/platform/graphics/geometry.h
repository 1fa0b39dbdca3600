// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace brenvaldo::platform::graphics {

/// Width and height in whole pixels.
struct PixelSize
{
    int width = 0;
    int height = 0;

    /// True when both sides are at least one pixel.
    [[nodiscard]] bool isValid() const { return width > 0 && height > 0; }

    friend bool operator==(const PixelSize&, const PixelSize&) = default;
};

/// A rectangle of whole pixels; the origin of the picture is its top left corner.
struct PixelRect
{
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;

    friend bool operator==(const PixelRect&, const PixelRect&) = default;
};

} // namespace brenvaldo::platform::graphics
