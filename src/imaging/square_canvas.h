// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/graphics/color.h>
#include <platform/graphics/image.h>

#include <optional>

namespace brenvaldo::imaging {

/// The photo in the middle of a square of 1080 pixels in `color`, as large as fits; nothing when
/// the photo is damaged.
[[nodiscard]] std::optional<platform::graphics::Image>
onSquareCanvas(const platform::graphics::Image& photo, const platform::graphics::Color& color);

/// The same a little smaller, under a band of 100 pixels along the edges.
[[nodiscard]] std::optional<platform::graphics::Image> onFramedSquareCanvas(
    const platform::graphics::Image& photo, const platform::graphics::Color& color
);

} // namespace brenvaldo::imaging
