// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "filter_settings.h"

#include <platform/filters/filter.h>

/// \file
/// Chains of filters that turn a photo into a printed pattern of dots, rings, lines or threads.

namespace brenvaldo::imaging {

using platform::filters::FilterImage;

/// The picture that a filter makes, its inputs at their defaults but for those given; the picture
/// itself when the filter makes none.
[[nodiscard]] FilterImage filtered(
    const FilterImage& image,
    const QString& filter,
    const QList<std::pair<QString, platform::filters::InputValue>>& inputs = {}
);

/// Rings about the centre.
[[nodiscard]] FilterImage ringScreen(const FilterImage& image, const ScreenSettings& settings);

/// One pass of "CIDotScreen" or "CILineScreen".
[[nodiscard]] FilterImage
patternScreen(const FilterImage& image, const QString& pattern, const ScreenSettings& settings);

/// Lines, and other lines across them closer by `widthShare`, as many times as there are rounds.
[[nodiscard]] FilterImage wovenScreen(
    const FilterImage& image, const ScreenSettings& settings, float widthShare, int rounds = 1
);

/// Lines in eleven directions, whatever the angle.
[[nodiscard]] FilterImage
elevenThreadsScreen(const FilterImage& image, const ScreenSettings& settings);

/// Rings about nine points, each of another width.
[[nodiscard]] FilterImage nineRingsScreen(const FilterImage& image, const ScreenSettings& settings);

enum class Tones { One = 1, Two };

/// A pattern that decides between the photo and its tones; inverting swaps the two.
[[nodiscard]] FilterImage threeToneScreen(
    const FilterImage& image, const QString& pattern, Tones tones, const ScreenSettings& settings
);

} // namespace brenvaldo::imaging
