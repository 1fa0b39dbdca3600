// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/graphics/image.h>

#include <vector>

namespace brenvaldo::platform::services {

/// The faces of an upright picture, from hair to chin and inside of the picture, from left to right
/// and then from top to bottom.
///
/// Finds faces that look at the camera and measure at least 4 % of the picture's long side; nothing
/// in a damaged picture.
[[nodiscard]] std::vector<graphics::PixelRect> findFaces(const graphics::Image& picture);

} // namespace brenvaldo::platform::services
