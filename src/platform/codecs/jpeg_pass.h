// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/graphics/image.h>

namespace brenvaldo::platform::codecs {

/// `image` as 8-bit RGB, as it comes back out of a JPEG of the best quality: opaque, transparent
/// parts on white. Lazily evaluated like any other step; no file is made.
[[nodiscard]] graphics::Image throughJpeg(const graphics::Image& image);

} // namespace brenvaldo::platform::codecs
