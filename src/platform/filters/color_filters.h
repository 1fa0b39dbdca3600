// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "filter_image.h"

#include <platform/graphics/color.h>

/// \file
/// Filters that change each pixel's colour by itself. The alpha stays.

namespace brenvaldo::platform::filters {

[[nodiscard]] FilterImage inverted(const FilterImage& image);

/// Shades of one colour, whose alpha is ignored; an intensity of 0 changes nothing.
[[nodiscard]] FilterImage
monochrome(const FilterImage& image, const graphics::Color& color, double intensity);

/// As many values a component, black and white among them; less than 2 count as 2.
[[nodiscard]] FilterImage posterized(const FilterImage& image, double levels);

[[nodiscard]] FilterImage sepiaToned(const FilterImage& image, double intensity);

struct ColorControls
{
    double saturation = 1; ///< 0 is grey
    double brightness = 0;
    double contrast = 1; ///< about the middle of linear light
};

[[nodiscard]] FilterImage
withColorControls(const FilterImage& image, const ColorControls& controls);

} // namespace brenvaldo::platform::filters
