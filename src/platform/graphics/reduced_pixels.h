// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "geometry.h"

#include <vips/vips8>

namespace brenvaldo::platform::graphics {

/// `pixels` of 8 or 16 bits or floating point, brought to `size`, whose sides are no longer than
/// theirs, by Lanczos's kernel. Pixels that can be read only from top to bottom are read so, each
/// once.
[[nodiscard]] vips::VImage reducedPixels(const vips::VImage& pixels, PixelSize size);

} // namespace brenvaldo::platform::graphics
