// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "filter_settings.h"

#include <platform/graphics/image.h>

#include <optional>

namespace brenvaldo::imaging {

/// The photo after the filter of the settings' number, with the alpha that it has; nothing for a
/// number that no filter has, or when the photo is damaged.
[[nodiscard]] std::optional<platform::graphics::Image>
filteredPhoto(const platform::graphics::Image& photo, const FilterSettings& settings);

/// True for the numbers of the catalogue.
[[nodiscard]] bool isFilterNumber(int number);

} // namespace brenvaldo::imaging
