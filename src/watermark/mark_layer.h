// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "image_watermark_settings.h"

#include <platform/graphics/image.h>

/// \file
/// The steps that make a layer of the image of a watermark. Layers are 8-bit sRGB with straight
/// alpha, at one pixel a point.

namespace brenvaldo::watermark {

/// The size in points that an image of `pixels` has at a photo's resolution; its size in pixels
/// when their resolutions, rounded up to whole dots per inch, are the same.
[[nodiscard]] QSizeF matchedSize(const platform::graphics::Image& image, double dotsPerInch);

[[nodiscard]] platform::graphics::Image filtered(
    const platform::graphics::Image& layer, MarkFilter filter, const imaging::ScreenSettings& screen
);

/// The layer by the factor of the rule; nothing when no pixel is left.
[[nodiscard]] std::optional<platform::graphics::Image> scaled(
    const platform::graphics::Image& layer,
    const ScaleRule& rule,
    platform::graphics::PixelSize photo
);

/// A shadow and its place on what the layer stands on, from its top left corner.
struct CastShadow
{
    platform::graphics::Image image;
    QPoint topLeft;
};

/// The shadow that `layer` casts when it stands at `topLeft`.
[[nodiscard]] CastShadow
castBy(const platform::graphics::Image& layer, QPoint topLeft, const MarkShadow& shadow);

/// Where something stands that casts a shadow into `area`, or stands in it.
[[nodiscard]] QRect shownIn(const QRect& area, const std::optional<MarkShadow>& shadow);

} // namespace brenvaldo::watermark
