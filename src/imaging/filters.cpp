// SPDX-License-Identifier: GPL-3.0-or-later
#include "dv_color_conversions.h"

#include "dv_image_handling.h"
#include "filter_catalogue.h"
#include "filter_preview.h"
#include "screen_recipes.h"

#include <platform/codecs/jpeg_pass.h>
#include <platform/filters/filtered_image.h>
#include <platform/foundation/literals.h>

#include <QUrl>

namespace brenvaldo::imaging {

using platform::codecs::throughJpeg;
using platform::graphics::Image;

namespace {

Image screenedPicture(
    const Image& image, const std::function<FilterImage(const FilterImage&)>& recipe
)
{
    return throughJpeg(platform::filters::filteredImage(image, recipe));
}

Image patternPicture(const Image& image, const QString& pattern, const ScreenSettings& settings)
{
    return screenedPicture(image, [&](const FilterImage& source) {
        return patternScreen(source, pattern, settings);
    });
}

Image wovenPicture(const Image& image, const ScreenSettings& settings, int rounds)
{
    return screenedPicture(image, [&](const FilterImage& source) {
        constexpr float asWide = 1;
        return wovenScreen(source, settings, asWide, rounds);
    });
}

Image threeTonePicture(
    const Image& image, const QString& pattern, Tones tones, const ScreenSettings& settings
)
{
    return screenedPicture(image, [&](const FilterImage& source) {
        return threeToneScreen(source, pattern, tones, settings);
    });
}

} // namespace

Outcome DVColorConversions::hAddFilter(
    const SourceAndBase& photo, const FilterSettings& settings, const OutputTail& tail
)
{
    if (!isFilterNumber(settings.number))
        return WordOfPictureBefore{};
    std::optional<Image> result;
    if (const auto image = DVImageHandling::hNSURLtoCIImage(QUrl::fromLocalFile(photo.source)))
        result = filteredPhoto(*image, settings);
    return outputPicture(result ? std::optional(throughJpeg(*result)) : result, photo, tail);
}

std::optional<Image>
DVColorConversions::hAddFilterPreview(const Image& photo, const FilterSettings& settings)
{
    const auto result = filteredPhoto(photo, settings);
    return result ? std::optional(previewOf(*result, photo, settings)) : std::nullopt;
}

Image DVColorConversions::hCircularScreenFilter(const Image& image, const ScreenSettings& settings)
{
    return screenedPicture(image, [&](const FilterImage& source) {
        return ringScreen(source, settings);
    });
}

Image DVColorConversions::hDotScreenFilter(const Image& image, const ScreenSettings& settings)
{
    return patternPicture(image, u"CIDotScreen"_s, settings);
}

Image DVColorConversions::hLineScreenFilter(const Image& image, const ScreenSettings& settings)
{
    return patternPicture(image, u"CILineScreen"_s, settings);
}

Image DVColorConversions::hFabricScreenFilter(const Image& image, const ScreenSettings& settings)
{
    return wovenPicture(image, settings, 1);
}

Image DVColorConversions::hFabric2ScreenFilter(const Image& image, const ScreenSettings& settings)
{
    return hFabricScreenFilter(image, settings);
}

Image DVColorConversions::hFabric3ScreenFilter(const Image& image, const ScreenSettings& settings)
{
    return screenedPicture(image, [&](const FilterImage& source) {
        return elevenThreadsScreen(source, settings);
    });
}

Image DVColorConversions::hFabric4ScreenFilter(const Image& image, const ScreenSettings& settings)
{
    return wovenPicture(image, settings, 4);
}

Image DVColorConversions::hDottyScreenFilter(const Image& image, const ScreenSettings& settings)
{
    return threeTonePicture(image, u"CIDotScreen"_s, Tones::One, settings);
}

Image DVColorConversions::hDottyBWScreenFilter(const Image& image, const ScreenSettings& settings)
{
    return threeTonePicture(image, u"CIDotScreen"_s, Tones::Two, settings);
}

Image DVColorConversions::hStrokeScreenFilter(const Image& image, const ScreenSettings& settings)
{
    return threeTonePicture(image, u"CILineScreen"_s, Tones::One, settings);
}

Image DVColorConversions::hStrokeBWScreenFilter(const Image& image, const ScreenSettings& settings)
{
    return threeTonePicture(image, u"CILineScreen"_s, Tones::Two, settings);
}

} // namespace brenvaldo::imaging
