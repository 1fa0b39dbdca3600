// SPDX-License-Identifier: GPL-3.0-or-later
#include "filter_sample.h"

#include "filter_catalogue.h"

#include <algorithm>

namespace brenvaldo::imaging {

namespace {

/// The screens that are laid over each other, each finer than the one before.
bool isChain(int number) { return number >= 7 && number <= 10; }

FilterSettings settingsFor(int number, int longerSide)
{
    const auto side = static_cast<float>(longerSide);
    const float patternWidth = isChain(number) ? side / 9 : side / 20;
    return {
        .number = number,
        .screen = {.width = patternWidth, .angle = 45, .sharpness = 0.7F},
        .blurRadius = side / 40,
        .color = {.red = 0.35, .green = 0.5, .blue = 0.7},
        .levels = 3,
        .unsharpRadius = side / 60,
        .unsharpIntensity = 1};
}

} // namespace

std::optional<platform::graphics::Image>
filterSample(const platform::graphics::Image& photo, int number)
{
    return filteredPhoto(photo, settingsFor(number, std::max(photo.width(), photo.height())));
}

} // namespace brenvaldo::imaging
