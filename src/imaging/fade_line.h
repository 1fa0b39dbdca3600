// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLineF>
#include <QSizeF>

namespace brenvaldo::imaging {

/// The line of a gradient through `middle` of an area of `size`, from side to side. Its direction
/// goes by an index of a pop-up of angles: 0, 90 and 180 degrees, and 270 at any other.
///
/// Measured from the bottom left corner, upward.
[[nodiscard]] QLineF fadeLine(const QPointF& middle, const QSizeF& size, int angleIndex);

} // namespace brenvaldo::imaging
