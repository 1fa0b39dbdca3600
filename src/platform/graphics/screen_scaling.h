// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "image.h"

#include <functional>

namespace brenvaldo::platform::graphics {

/// `image` at `size` for a look at it on a screen, in a fraction of the time of `Image::scaledTo`.
///
/// Whole blocks of pixels are averaged down to less than twice the size; `scaledTo` does the rest.
/// Pictures with alpha and those that hardly shrink are left to `scaledTo`. A picture that can be
/// drawn at a smaller size is drawn so.
[[nodiscard]] Image scaledForScreen(const Image& image, PixelSize size);

/// `image`, that `draw` makes at any smaller size from smaller originals: a look at it on a screen
/// need not wait for all of its pixels.
[[nodiscard]] Image drawnSmallerBy(const Image& image, std::function<Image(PixelSize)> draw);

/// How a picture of the size `from` changes when it is drawn at the size `to`.
struct Shrinking
{
    PixelSize from;
    PixelSize to;

    [[nodiscard]] double across() const { return static_cast<double>(to.width) / from.width; }
    [[nodiscard]] double along() const { return static_cast<double>(to.height) / from.height; }

    /// What becomes of a part: its edges come to stand on whole pixels, at least one apart.
    [[nodiscard]] PixelRect of(const PixelRect& part) const;
};

} // namespace brenvaldo::platform::graphics
