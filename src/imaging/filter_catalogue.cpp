// SPDX-License-Identifier: GPL-3.0-or-later
#include "filter_catalogue.h"

#include "screen_recipes.h"
#include "square_canvas.h"

#include <platform/filters/filtered_image.h>
#include <platform/foundation/literals.h>

namespace brenvaldo::imaging {

using platform::graphics::Image;

namespace {

constexpr int firstCanvas = 12;
constexpr int framedCanvas = 13;
constexpr int lastNumber = 25;

double widened(float value) { return static_cast<double>(value); }

/// The filters that need one pass of one filter, or a chain of screens.
FilterImage screenOf(const FilterImage& image, const FilterSettings& settings)
{
    constexpr float closer = 1.5;
    const QString dots = u"CIDotScreen"_s;
    const QString lines = u"CILineScreen"_s;
    switch (settings.number) {
    case 3:
        return ringScreen(image, settings.screen);
    case 4:
        return threeToneScreen(image, dots, Tones::One, settings.screen);
    case 5:
        return threeToneScreen(image, dots, Tones::Two, settings.screen);
    case 6:
        return patternScreen(image, dots, settings.screen);
    case 7:
        return wovenScreen(image, settings.screen, closer);
    case 8:
        return nineRingsScreen(image, settings.screen);
    case 9:
        return elevenThreadsScreen(image, settings.screen);
    case 10:
        return wovenScreen(image, settings.screen, closer, 4);
    case 14:
        return patternScreen(image, lines, settings.screen);
    case 19:
        return threeToneScreen(image, lines, Tones::One, settings.screen);
    case 20:
        return threeToneScreen(image, lines, Tones::Two, settings.screen);
    default:
        return image;
    }
}

FilterImage filteredByNumber(const FilterImage& image, const FilterSettings& settings)
{
    switch (settings.number) {
    case 0:
        return filtered(image, u"CIPhotoEffectNoir"_s);
    case 1:
        return filtered(image, u"CIPhotoEffectMono"_s);
    case 2:
        return filtered(image, u"CIPhotoEffectChrome"_s);
    case 11:
        return filtered(
            image, u"CIGaussianBlur"_s, {{u"inputRadius"_s, widened(settings.blurRadius)}}
        );
    case 15:
        return filtered(
            image,
            u"CIColorMonochrome"_s,
            {{u"inputColor"_s, settings.color},
             {u"inputIntensity"_s, widened(settings.monochromeIntensity)}}
        );
    case 16:
        return filtered(image, u"CIColorInvert"_s);
    case 17:
        return filtered(
            image, u"CIColorPosterize"_s, {{u"inputLevels"_s, widened(settings.levels)}}
        );
    case 18:
        return filtered(
            image, u"CISepiaTone"_s, {{u"inputIntensity"_s, widened(settings.sepiaIntensity)}}
        );
    case 21:
        return filtered(
            image,
            u"CIUnsharpMask"_s,
            {{u"inputRadius"_s, widened(settings.unsharpRadius)},
             {u"inputIntensity"_s, widened(settings.unsharpIntensity)}}
        );
    case 22:
        return filtered(image, u"CIPhotoEffectProcess"_s);
    case 23:
        return filtered(image, u"CIPhotoEffectFade"_s);
    case 24:
        return filtered(image, u"CIPhotoEffectInstant"_s);
    case 25:
        return filtered(image, u"CIPhotoEffectTransfer"_s);
    default:
        return screenOf(image, settings);
    }
}

} // namespace

std::optional<Image> filteredPhoto(const Image& photo, const FilterSettings& settings)
{
    if (!isFilterNumber(settings.number))
        return std::nullopt;
    if (settings.number == firstCanvas)
        return onSquareCanvas(photo, settings.color);
    if (settings.number == framedCanvas)
        return onFramedSquareCanvas(photo, settings.color);
    return platform::filters::filteredImage(photo, [&](const FilterImage& image) {
        return filteredByNumber(image, settings);
    });
}

bool isFilterNumber(int number) { return number >= 0 && number <= lastNumber; }

} // namespace brenvaldo::imaging
