// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "watermark_rules.h"

#include <QList>
#include <QRect>

/// \file
/// Where the tiles of a watermark lie on the photo. The origin is the photo's top left corner, y
/// runs down.

namespace brenvaldo::watermark {

/// Top left corner of one of the cells that cover the photo.
[[nodiscard]] QPoint cellCorner(
    const TileCell& cell, platform::graphics::PixelSize overlay, platform::graphics::PixelSize photo
);

/// Place of the overlay's top left corner in the cell.
[[nodiscard]] QPoint overlayInCell(const TileCell& cell, platform::graphics::PixelSize overlay);

/// The rectangle of the photo that the cells are drawn in.
[[nodiscard]] QRect
tiledArea(platform::graphics::PixelSize overlay, platform::graphics::PixelSize photo);

/// The largest of `start`, `start` - `step`, ... that does not lie behind `edge`, one step earlier
/// at the most.
[[nodiscard]] int lastStepBefore(int start, int edge, int step);

/// What is left of `whole` around `inner`, which lies in it: stripes above, below and beside.
[[nodiscard]] QList<QRect> stripesAround(const QRect& inner, const QRect& whole);

} // namespace brenvaldo::watermark
