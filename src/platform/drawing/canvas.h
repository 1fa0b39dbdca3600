// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/graphics/image.h>

namespace brenvaldo::platform::drawing {

/// `overlay` laid over `base`, both of the same size; lazily evaluated.
///
/// The overlay is 8-bit sRGB with straight alpha, as `Image::fromQImage` gives it; its colours are
/// brought to the profile, the model and the depth of `base`, which the result keeps.
[[nodiscard]] graphics::Image over(const graphics::Image& base, const graphics::Image& overlay);

} // namespace brenvaldo::platform::drawing
