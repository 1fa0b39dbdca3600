// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "filter_image.h"

namespace brenvaldo::platform::filters {

/// Black and white in a pattern whose white parts grow with the light: true black and true white
/// stay, and so does the light of the whole.
struct Halftone
{
    enum class Pattern { Rings, Dots, Lines };

    Pattern pattern = Pattern::Dots;
    double centreX = 150; ///< from the left edge, in pixels
    double centreY = 150; ///< from the bottom edge, upwards
    double width = 6; ///< between two rings, dots or lines; at least 1
    double angle = 0; ///< radians, counter-clockwise; lines are level at 0; rings have none
    double sharpness = 0.7; ///< 0 to 1
};

[[nodiscard]] FilterImage screened(const FilterImage& image, const Halftone& halftone);

} // namespace brenvaldo::platform::filters
