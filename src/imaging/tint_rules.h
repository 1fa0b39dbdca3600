// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tint_settings.h"

#include <platform/drawing/blend_mode.h>
#include <platform/graphics/geometry.h>

#include <QLineF>
#include <QPoint>

#include <optional>

/// \file
/// The numbers of a tint. Points are in drawing coordinates: the origin is the photo's bottom left
/// corner, y runs up. Arithmetic is that of 32 bits and wraps.

namespace brenvaldo::imaging {

/// From 0 to 1: nothing entered (0) and more than 100 is 1, below 0 is 0.1.
[[nodiscard]] double tintOpacity(std::int64_t percent);

/// The mode at an index of `pubAddTintRenderMethod`; normal beyond the last.
[[nodiscard]] platform::drawing::BlendMode tintBlendMode(int index);

/// The coloured area. A size below 0 lies to the left of the origin, and below it.
struct TintArea
{
    QPoint origin;
    std::int32_t width = 0;
    std::int32_t height = 0;

    friend bool operator==(const TintArea&, const TintArea&) = default;
};

/// The area of a photo; `previousOrigin` is that of an anchor that is none.
[[nodiscard]] TintArea
tintArea(const TintSettings& settings, platform::graphics::PixelSize photo, QPoint previousOrigin);

/// What of the area lies on the photo, from its top left corner; without pixels where nothing does.
[[nodiscard]] platform::graphics::PixelRect
visiblePart(const TintArea& area, platform::graphics::PixelSize photo);

/// The line across the area at an index of `pubAddTintAngle`: to the right, up, to the left, and
/// down for any other.
[[nodiscard]] QLineF fadeLine(const TintArea& area, int angleIndex);

} // namespace brenvaldo::imaging
