// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "image_mark.h"

/// \file
/// The two ways an image becomes the layer that is laid over a photo.

namespace brenvaldo::watermark {

/// A layer and its place on the photo, whose origin is its top left corner.
struct PlacedImage
{
    platform::graphics::Image image; ///< 8-bit sRGB with straight alpha
    QPoint topLeft;
};

/// What of the layer lies in `area`; nothing when they do not meet.
[[nodiscard]] std::optional<PlacedImage> partIn(const PlacedImage& layer, const QRect& area);

/// What a lane made of an image.
struct LaneResult
{
    std::optional<PlacedImage> layer = {}; ///< nothing when nothing is to be seen
    std::optional<PlacedImage> cell = {}; ///< of plain tiles, in memory: one of those on the photo
    bool isDamaged = false; ///< the image turned out to be damaged
};

/// The image once, in memory as far as `area` of the photo shows it.
[[nodiscard]] LaneResult singleLane(
    const ImageWatermarkSettings& settings,
    const platform::graphics::Image& image,
    const MarkedSize& photo,
    const QRect& area
);

/// The image repeated over the photo, as far as it lies in `area`; not in memory but for its cell.
[[nodiscard]] LaneResult patternLane(
    const ImageWatermarkSettings& settings,
    const platform::graphics::Image& image,
    const MarkedSize& photo,
    const QRect& area
);

} // namespace brenvaldo::watermark
