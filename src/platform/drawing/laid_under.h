// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/graphics/image.h>

namespace brenvaldo::platform::drawing {

/// `photo`, which has alpha, with `layer` showing through where it is not opaque; lazily evaluated.
///
/// The layer is as large as the photo, 8-bit sRGB with straight alpha; its colours and its depth
/// are brought to those of the photo, which keeps its own.
[[nodiscard]] graphics::Image
withLayerBelow(const graphics::Image& photo, const graphics::Image& layer);

} // namespace brenvaldo::platform::drawing
