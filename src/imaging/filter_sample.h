// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/graphics/image.h>

#include <optional>

namespace brenvaldo::imaging {

/// What the filter of `number` does, shown on a `photo` as small as a thumbnail: with settings
/// whose effect can be seen at that size. Nothing for a number that no filter has, or when the
/// photo is damaged.
[[nodiscard]] std::optional<platform::graphics::Image>
filterSample(const platform::graphics::Image& photo, int number);

} // namespace brenvaldo::imaging
