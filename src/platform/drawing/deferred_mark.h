// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/graphics/image.h>

#include <functional>

namespace brenvaldo::platform::drawing {

/// A photo with a mark on it.
struct MarkedPhoto
{
    graphics::Image picture; ///< of the photo's size and kind
    graphics::PixelRect part; ///< outside of it the picture is the photo
};

/// `photo` with the mark that `mark` lays on it: once, and not before the first pixel or
/// `stampedPart` is asked for, on the thread that asks. `photo` may be read more than once; what
/// `mark` throws makes the evaluation fail.
[[nodiscard]] graphics::Image
markedLater(const graphics::Image& photo, std::function<MarkedPhoto()> mark);

} // namespace brenvaldo::platform::drawing
