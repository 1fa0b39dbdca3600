// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/graphics/geometry.h>

#include <QSizeF>

namespace brenvaldo::imaging {

constexpr double pointsPerInch = 72.0;

/// Dots per inch of a picture that is `pointsWide` points (1/72 inch) wide, rounded up to a whole
/// number in single precision; NaN for a picture without size.
[[nodiscard]] float dotsPerInchRoundedUp(int pixelsWide, double pointsWide);

/// Size in points at a resolution, each side rounded up to a whole number in single precision.
[[nodiscard]] QSizeF pointsAtResolution(platform::graphics::PixelSize pixels, double dotsPerInch);

/// Size in points, not rounded.
[[nodiscard]] QSizeF exactPoints(platform::graphics::PixelSize pixels, double dotsPerInch);

} // namespace brenvaldo::imaging
