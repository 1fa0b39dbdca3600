// SPDX-License-Identifier: GPL-3.0-or-later
#include "filter_preview.h"

#include "filter_catalogue.h"

#include <platform/codecs/jpeg_pass.h>
#include <platform/graphics/screen_scaling.h>

#include <algorithm>

namespace brenvaldo::imaging {

using platform::graphics::Image;
using platform::graphics::PixelSize;

namespace {

/// The filters of single pixels, and those of radii, which shrink with the photo.
bool looksTheSameSmaller(int number)
{
    constexpr int patterns[] = {3, 4, 5, 6, 7, 8, 9, 10, 14, 19, 20};
    constexpr int canvases[] = {12, 13};
    const auto isOneOf = [number](const auto& numbers) {
        return std::find(std::begin(numbers), std::end(numbers), number) != std::end(numbers);
    };
    return !isOneOf(patterns) && !isOneOf(canvases);
}

FilterSettings shrunk(FilterSettings settings, float scale)
{
    settings.blurRadius *= scale;
    settings.unsharpRadius *= scale;
    return settings;
}

} // namespace

Image quicklyLookedAt(const Image& filtered, const Image& photo, const FilterSettings& settings)
{
    if (!looksTheSameSmaller(settings.number))
        return filtered;
    return platform::graphics::drawnSmallerBy(filtered, [photo, settings](PixelSize size) {
        const Image small = scaledForScreen(photo, size);
        const auto scale = static_cast<float>(size.width) / static_cast<float>(photo.width());
        return platform::codecs::throughJpeg(
            filteredPhoto(small, shrunk(settings, scale)).value_or(small)
        );
    });
}

} // namespace brenvaldo::imaging
