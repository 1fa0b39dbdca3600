// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "color.h"

#include <QImage>
#include <QPoint>

namespace brenvaldo::platform {

/// A soft copy of a drawn object in one colour, below and beside it.
struct Shadow
{
    Color color{.red = 0, .green = 0, .blue = 0, .alpha = 1.0 / 3.0};
    int xOffset = 0; ///< pixels to the right
    int yOffset = 0; ///< pixels upward
    double blurRadius = 0; ///< pixels; the Gaussian's sigma is half of it
};

/// Pixels by which a shadow of that blur reaches beyond the shifted object: 3 sigma.
[[nodiscard]] int shadowReach(double blurRadius);

/// The shadow that `object` (premultiplied ARGB) casts, as a premultiplied layer of `object`'s size
/// grown by `margin` on every side. What falls outside is cut off.
[[nodiscard]] QImage shadowLayer(const QImage& object, const Shadow& shadow, int margin);

/// The shadow of `cell` repeated without end: what leaves the cell at one side enters at the other.
[[nodiscard]] QImage tiledShadowLayer(const QImage& cell, const Shadow& shadow);

} // namespace brenvaldo::platform
