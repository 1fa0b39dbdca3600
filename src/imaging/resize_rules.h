// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/graphics/geometry.h>

/// \file
/// Target sizes of resizing. Photo sizes are upright pixels; an unreadable photo is 0 by 0.
///
/// Sides are truncated to whole pixels, products with 100 wrap at 32 bits, and a division by 0
/// gives sides that no context can be made of: ask `givesContext` before drawing.

namespace brenvaldo::imaging {

/// What the number of the maximum mode fixes; the other side follows.
enum class MaximumType { Width, Height, LongestSide, Percentage };

/// The type at an index of `pubScaleMaxType`; what is not 0 to 2 is a percentage.
[[nodiscard]] MaximumType maximumTypeAt(int index);

/// Target of the maximum mode; `value` is pixels or percent, nothing caps an enlargement.
[[nodiscard]] platform::graphics::PixelSize
maximumTarget(platform::graphics::PixelSize photo, int value, MaximumType type);

/// Size at which `photo` covers `box` with its proportions kept.
[[nodiscard]] platform::graphics::PixelSize
coveringSize(platform::graphics::PixelSize photo, platform::graphics::PixelSize box);

/// The part of a picture of size `scaled` that is left when the excess over `box` is cut off
/// equally on both sides; odd pixels stay at the right and at the bottom.
[[nodiscard]] platform::graphics::PixelRect
centredCut(platform::graphics::PixelSize scaled, platform::graphics::PixelSize box);

/// True when a picture of `size` can be drawn: no side below 1 pixel or above 10 million, and not
/// more than 2^30 pixels.
[[nodiscard]] bool givesContext(platform::graphics::PixelSize size);

} // namespace brenvaldo::imaging
