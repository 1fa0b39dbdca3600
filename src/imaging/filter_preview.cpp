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
bool isTheSameSmaller(int number)
{
    constexpr int others[] = {3, 4, 5, 6, 7, 8, 9, 10, 12, 13, 14, 19, 20}; // patterns, canvases
    return std::find(std::begin(others), std::end(others), number) == std::end(others);
}

FilterSettings shrunk(FilterSettings settings, float scale)
{
    settings.blurRadius *= scale;
    settings.unsharpRadius *= scale;
    return settings;
}

Image smallerFilteredPhoto(const Image& photo, const FilterSettings& settings, PixelSize size)
{
    const Image small = scaledForScreen(photo, size);
    const auto scale = static_cast<float>(size.width) / static_cast<float>(photo.width());
    return filteredPhoto(small, shrunk(settings, scale)).value_or(small);
}

} // namespace

Image previewOf(const Image& filtered, const Image& photo, const FilterSettings& settings)
{
    using platform::codecs::throughJpeg;
    return platform::graphics::drawnSmallerBy(
        throughJpeg(filtered),
        [filtered, photo, settings](PixelSize size) {
            return throughJpeg(
                isTheSameSmaller(settings.number) ? smallerFilteredPhoto(photo, settings, size)
                                                  : scaledForScreen(filtered, size)
            );
        }
    );
}

} // namespace brenvaldo::imaging
