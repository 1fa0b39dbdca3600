// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "blend_mode.h"

#include <platform/graphics/image.h>

#include <QPoint>

namespace brenvaldo::platform::drawing {

/// How a picture is laid over a photo.
struct Blending
{
    QPoint topLeft = {}; ///< of the picture on the photo, whose origin is its top left corner
    BlendMode mode = BlendMode::Normal;
    double opacity = 1; ///< from 0 to 1; scales the picture's alpha
};

/// `overlay` laid over `photo`, which keeps its size, depth, colour model, alpha and profile;
/// lazily evaluated.
///
/// The overlay is 8-bit sRGB with straight alpha and can be read in any order; its colours are
/// brought to those of the photo. It may lie outside in part or wholly.
[[nodiscard]] graphics::Image
blended(const graphics::Image& photo, const graphics::Image& overlay, const Blending& blending);

} // namespace brenvaldo::platform::drawing
