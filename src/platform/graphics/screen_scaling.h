// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "image.h"

namespace brenvaldo::platform::graphics {

/// `image` at `size` for a look at it on a screen, in a fraction of the time of `Image::scaledTo`.
///
/// Whole blocks of pixels are averaged down to less than twice the size; `scaledTo` does the rest.
/// Pictures with alpha and those that hardly shrink are left to `scaledTo`.
[[nodiscard]] Image scaledForScreen(const Image& image, PixelSize size);

} // namespace brenvaldo::platform::graphics
