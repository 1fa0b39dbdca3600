// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/graphics/geometry.h>

#include <QSizeF>

#include <optional>

/// \file
/// Sizes of turned pictures. Angles are degrees, positive counter-clockwise on the screen.

namespace brenvaldo::imaging {

/// Width and height of the box around a rectangle of `size` turned by `degrees`, not rounded.
[[nodiscard]] QSizeF boundsOfTurned(const QSizeF& size, double degrees);

/// Canvas of a photo turned by `degrees`: the box around it, truncated to whole pixels.
[[nodiscard]] platform::graphics::PixelSize
turnedCanvas(platform::graphics::PixelSize photo, double degrees);

/// Quarter turns counter-clockwise.
enum class QuarterTurns { None, One, Two, Three };

/// The quarter turns that an angle stands for; nothing when it is no multiple of 90 degrees.
[[nodiscard]] std::optional<QuarterTurns> quarterTurns(double degrees);

/// Canvas that holds a drawing area of `points` at one pixel a point.
///
/// A begun pixel counts; noise of the arithmetic (below a millionth of a point) does not.
[[nodiscard]] platform::graphics::PixelSize canvasOfPoints(const QSizeF& points);

} // namespace brenvaldo::imaging
