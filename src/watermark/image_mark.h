// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "image_watermark_settings.h"

#include <platform/drawing/deferred_mark.h>
#include <platform/drawing/stamp.h>
#include <platform/graphics/image.h>

#include <vector>

namespace brenvaldo::watermark {

/// What of a photo a mark depends on.
struct MarkedSize
{
    platform::graphics::PixelSize pixels;
    double dotsPerInch = 72;

    friend bool operator==(const MarkedSize&, const MarkedSize&) = default;
};

[[nodiscard]] MarkedSize markedSizeOf(const platform::graphics::Image& photo);

/// A layer and how it is laid on a photo, whose origin is its top left corner.
struct LaidLayer
{
    platform::graphics::Image image; ///< 8-bit sRGB with straight alpha, readable in any order
    QPoint topLeft;
    platform::drawing::BlendMode mode = platform::drawing::BlendMode::Normal;
};

/// An image watermark ready to be laid on photos of one size, any number of times, on any thread.
struct ImageMark
{
    std::vector<LaidLayer> layers; ///< from the lowest up
    std::optional<platform::drawing::Stamp> stamp; ///< above them: tiles that are laid as they are
    double opacity = 1;
    std::optional<MarkShadow> shadow; ///< that a photo casts where it is transparent
};

/// Makes `image` ready: scale, fade, filter, turn, place or tiling, and shadow. Nothing when the
/// image turns out to be damaged.
[[nodiscard]] std::optional<ImageMark> preparedMark(
    const ImageWatermarkSettings& settings,
    const platform::graphics::Image& image,
    const MarkedSize& photo
);

/// `photo` with the mark on it. It is read more than once when it has alpha and the mark a shadow.
[[nodiscard]] platform::drawing::MarkedPhoto
laidOn(const platform::graphics::Image& photo, const ImageMark& mark);

} // namespace brenvaldo::watermark
