// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "filter_image.h"

#include <functional>

namespace brenvaldo::platform::filters {

/// What `chain` makes of `photo`, 8-bit sRGB, lazily evaluated; it has alpha where the photo has.
///
/// A chain that the engine refuses gives a picture that fails when it is evaluated.
[[nodiscard]] graphics::Image filteredImage(
    const graphics::Image& photo, const std::function<FilterImage(const FilterImage&)>& chain
);

} // namespace brenvaldo::platform::filters
