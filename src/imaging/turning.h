// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/graphics/free_turn.h>
#include <platform/graphics/image.h>

#include <optional>

namespace brenvaldo::imaging {

/// The photo turned by `degrees` on the canvas of `turnedCanvas`; quarter turns move pixels and
/// compute none.
///
/// Nothing when no canvas can be made for the angle.
[[nodiscard]] std::optional<platform::graphics::Image> turnedPhoto(
    const platform::graphics::Image& photo, double degrees, platform::graphics::FreeCorners corners
);

/// The picture at one pixel a point, turned by `degrees` on a transparent canvas that just holds
/// it; nothing when no pixel is left.
[[nodiscard]] std::optional<platform::graphics::Image>
turnedLayer(const platform::graphics::Image& picture, double degrees);

} // namespace brenvaldo::imaging
