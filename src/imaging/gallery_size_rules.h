// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/graphics/geometry.h>

#include <optional>

namespace brenvaldo::imaging {

/// The size that a gallery's picture is made at; sizes are stored pixels, sides are truncated.
///
/// `type` tells what `value` fixes: 0 the width, 1 the height, 2 and 5 the longer side, 3 both
/// sides in percent, 4 the shorter side; 6 the longer side and 7 the height, where they are above
/// it. Nothing for any other type.
[[nodiscard]] std::optional<platform::graphics::PixelSize>
gallerySize(platform::graphics::PixelSize photo, int value, int type);

} // namespace brenvaldo::imaging
