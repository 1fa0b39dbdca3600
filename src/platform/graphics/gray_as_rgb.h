// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "image.h"

namespace brenvaldo::platform::graphics {

/// A grey picture as one of sRGB that can take colours, its depth and alpha kept; any other as it
/// is.
[[nodiscard]] Image grayAsRgb(const Image& image);

} // namespace brenvaldo::platform::graphics
