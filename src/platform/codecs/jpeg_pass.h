// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/graphics/image.h>

namespace brenvaldo::platform::codecs {

/// `image` as it comes back out of a JPEG of the best quality, which is made in memory when the
/// first pixel is needed: 8 bits, opaque, transparent parts on white.
[[nodiscard]] graphics::Image throughJpeg(const graphics::Image& image);

} // namespace brenvaldo::platform::codecs
