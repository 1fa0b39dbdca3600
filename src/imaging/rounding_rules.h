// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "rounding_settings.h"

#include <platform/graphics/geometry.h>

#include <QPainterPath>
#include <QPoint>

#include <optional>

namespace brenvaldo::imaging {

/// Where a photo, its cut and its border stand. Drawings are measured from the bottom left corner
/// of the canvas, upward.
struct RoundingPlan
{
    platform::graphics::PixelSize canvas;
    QPoint photo; ///< its lower left corner
    QPainterPath clip;
    QPainterPath border; ///< the middle of its line
    double borderWidth = 0; ///< 0 without a border
};

/// Nothing when no canvas can be made.
///
/// The corners of the clip are rounder than those of the border's line, and only the radius of the
/// clip shrinks with the border: with a small radius the two differ.
[[nodiscard]] std::optional<RoundingPlan>
roundingPlan(platform::graphics::PixelSize photo, const RoundingSettings& settings);

} // namespace brenvaldo::imaging
