// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "crop_settings.h"

#include <QPoint>

#include <optional>

/// \file
/// Size and place of a crop, and of the outline that shows it. Photo sizes are pixels; products and
/// sums wrap at 32 bits, divisions truncate.

namespace brenvaldo::imaging {

/// True when `settings` cut off a percentage that nothing is left of; it counts as 0 percent.
[[nodiscard]] bool cutsOffTooMuch(const CropSettings& settings);

/// Size of the rectangle; may be larger than the photo, and negative.
[[nodiscard]] platform::graphics::PixelSize
cropSize(const CropSettings& settings, platform::graphics::PixelSize photo);

/// The free offset of a crop, to the right and down.
struct CropOffset
{
    std::int64_t x = 0;
    std::int64_t y = 0;
};

/// Origin of the rectangle from the top left corner of the photo; `anchor` counts the nine places
/// by rows. Nothing for any other anchor.
[[nodiscard]] std::optional<QPoint> cropOrigin(
    platform::graphics::PixelSize photo,
    platform::graphics::PixelSize size,
    int anchor,
    const CropOffset& offset
);

/// The same from the bottom left corner to that of the rectangle, y upwards, as drawings count.
[[nodiscard]] std::optional<QPoint> drawnCropOrigin(
    platform::graphics::PixelSize photo,
    platform::graphics::PixelSize size,
    int anchor,
    const CropOffset& offset
);

/// The pixels that a rectangle covers; one of negative size lies to the left of and above its
/// origin.
[[nodiscard]] platform::graphics::PixelRect
coveredPixels(const QPoint& origin, platform::graphics::PixelSize size);

/// Width of the outline, in pixels of the photo.
[[nodiscard]] float cropOutlineWidth(platform::graphics::PixelSize photo);

/// Length of the outline's dashes, and of the gaps between them.
[[nodiscard]] double cropDashLength(float outlineWidth);

} // namespace brenvaldo::imaging
