// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "image_node.h"

namespace brenvaldo::platform::graphics {

/// 8-bit samples of the picture, 16-bit ones rounded.
[[nodiscard]] ImageNode withBytes(const ImageNode& node);

/// The picture laid on white, without alpha.
[[nodiscard]] ImageNode flattenedOnWhite(const ImageNode& node);

} // namespace brenvaldo::platform::graphics
