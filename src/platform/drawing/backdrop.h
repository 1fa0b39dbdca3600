// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/graphics/color.h>
#include <platform/graphics/image.h>

namespace brenvaldo::platform::drawing {

/// A canvas of one colour, larger than a picture by `margin` pixels on every side; a negative
/// margin cuts off. The colour's own alpha plays no part.
struct Backdrop
{
    graphics::Color color = {};
    int margin = 0;
};

/// The picture in the middle of the backdrop: an opaque one in 8-bit sRGB. Both sides must be at
/// least one pixel long.
[[nodiscard]] graphics::Image laidOn(const Backdrop& backdrop, const graphics::Image& picture);

} // namespace brenvaldo::platform::drawing
