// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "filter_image.h"

/// \file
/// Filters that look at a pixel's neighbours, in linear light. Beyond the edges the outermost
/// pixels go on, and the size stays.

namespace brenvaldo::platform::filters {

/// A Gaussian whose sigma is `radius` pixels.
[[nodiscard]] FilterImage blurred(const FilterImage& image, double radius);

/// The picture with its differences from the blurred one added, times `intensity`.
[[nodiscard]] FilterImage sharpened(const FilterImage& image, double radius, double intensity);

} // namespace brenvaldo::platform::filters
