// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo_effect.h"

#include <platform/graphics/gray_levels.h>

#include <algorithm>
#include <cmath>

namespace brenvaldo::platform::filters {

namespace {

double noirLevel(double red, double green, double blue)
{
    constexpr double gamma = 1.15;
    constexpr double black = -0.05;
    constexpr double white = 1.05;
    const double mixed = 0.34 * red + 0.55 * green + 0.11 * blue;
    const double darkened = std::pow(std::clamp(mixed, 0.0, 1.0), gamma);
    const double curved = darkened + darkened * (1 - darkened) * (2 * darkened - 1);
    return std::clamp(black + (white - black) * curved, 0.0, 1.0);
}

} // namespace

graphics::Image photoEffectNoir(const graphics::Image& image)
{
    return graphics::withGrayLevels(image, noirLevel);
}

} // namespace brenvaldo::platform::filters
