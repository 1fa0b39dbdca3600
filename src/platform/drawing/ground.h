// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/graphics/color.h>
#include <platform/graphics/image.h>

#include <QPoint>

namespace brenvaldo::platform::drawing {

/// A plain canvas below a picture.
struct Ground
{
    graphics::PixelSize size;
    graphics::Color color; ///< opaque, whatever its alpha is
};

/// `picture` drawn on `ground` with its top left corner at `place`, where it may stand out; what
/// does is cut off. Lazily evaluated.
///
/// The depth, colour model, profile and kind of alpha of the picture stay. They need not meet.
[[nodiscard]] graphics::Image
laidOn(const Ground& ground, const graphics::Image& picture, QPoint place);

} // namespace brenvaldo::platform::drawing
