// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/graphics/color.h>
#include <platform/graphics/image_node.h>

#include <vector>

namespace brenvaldo::platform::drawing {

/// The samples of `color` in the profile, the colour model and the depth of `photo`, without an
/// alpha. Throws `vips::VError` when the colour can't be brought there.
[[nodiscard]] std::vector<double>
samplesOf(const graphics::Color& color, const graphics::ImageNode& photo);

} // namespace brenvaldo::platform::drawing
