// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "frame_settings.h"

#include <platform/drawing/blend_mode.h>
#include <platform/graphics/geometry.h>

#include <QPainterPath>
#include <QTransform>

#include <optional>

/// \file
/// Numbers and lines of frames and borders. Drawings are measured from the bottom left corner of a
/// canvas, upward.

namespace brenvaldo::imaging {

enum class FrameType { Inside, Outside };

/// Nothing for an index of `pubFramingType` that stands for no frame.
[[nodiscard]] std::optional<FrameType> frameTypeAt(int index);

/// The blend mode at an index of the frames' table; any other index leaves the normal one.
[[nodiscard]] platform::drawing::BlendMode frameBlendAt(int index);

/// Opacity of a frame that is written, from 0 to 1. What is no percentage is a value of its own
/// inside of a photo, and that of the photo before outside.
[[nodiscard]] double frameOpacity(const FrameSettings& settings, double opacityBefore);

/// Opacity of a frame that is only shown, and of all borders.
[[nodiscard]] double shownOpacity(std::int64_t percent);

/// The size of a photo with a frame of that thickness around it, in single precision; no size when
/// nothing is left of it or when it is beyond all measure.
[[nodiscard]] platform::graphics::PixelSize
grownBy(platform::graphics::PixelSize photo, std::int64_t thickness);

/// The middle line of a frame, `distance` away from the edges of the canvas. It begins at the
/// height `begin`, so that a wide line closes the corner.
[[nodiscard]] QPainterPath
frameLine(platform::graphics::PixelSize canvas, double distance, double begin);

/// From a drawing on the canvas to pixels that are counted from its top left corner.
[[nodiscard]] QTransform toPixels(platform::graphics::PixelSize canvas);

} // namespace brenvaldo::imaging
