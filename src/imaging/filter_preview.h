// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "filter_settings.h"

#include <platform/graphics/image.h>

namespace brenvaldo::imaging {

/// `filtered`, which the filter of the settings has made of `photo`, as a run writes it. A look at
/// it on a screen takes the photo at that size first, where the filter makes the same of it:
/// patterns of pixels are made at full size.
[[nodiscard]] platform::graphics::Image previewOf(
    const platform::graphics::Image& filtered,
    const platform::graphics::Image& photo,
    const FilterSettings& settings
);

} // namespace brenvaldo::imaging
