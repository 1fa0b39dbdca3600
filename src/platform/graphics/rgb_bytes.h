// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "image.h"

namespace brenvaldo::platform::graphics {

/// The picture in 8-bit sRGB with an alpha, whatever it was.
[[nodiscard]] Image rgbaBytes(const Image& image);

} // namespace brenvaldo::platform::graphics
