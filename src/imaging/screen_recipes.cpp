// SPDX-License-Identifier: GPL-3.0-or-later
#include "screen_recipes.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::imaging {

using platform::filters::Filter;
using platform::filters::InputValue;
using platform::filters::Point;

namespace {

/// Degrees clockwise as radians counter-clockwise.
double radiansOf(float degrees)
{
    constexpr double pi = 3.141592653589793;
    return static_cast<double>(degrees) / -180.0 * pi;
}

double asDouble(float value) { return static_cast<double>(value); }

/// What follows on the pattern of every pass; `source` is what the pass began with.
FilterImage
invertedAndMasked(FilterImage pattern, const FilterImage& source, const ScreenSettings& settings)
{
    if (settings.isInverted)
        pattern = filtered(pattern, u"CIColorInvert"_s);
    if (!settings.isMask)
        return pattern;
    return filtered(
        pattern,
        u"CIBlendWithMask"_s,
        {{u"inputBackgroundImage"_s, source}, {u"inputMaskImage"_s, pattern}}
    );
}

FilterImage
barePattern(const FilterImage& image, const QString& pattern, const ScreenSettings& settings)
{
    return filtered(
        image,
        pattern,
        {{u"inputWidth"_s, asDouble(settings.width)},
         {u"inputAngle"_s, radiansOf(settings.angle)},
         {u"inputSharpness"_s, asDouble(settings.sharpness)}}
    );
}

FilterImage linePass(const FilterImage& image, ScreenSettings settings, float angle, float width)
{
    settings.angle = angle;
    settings.width = width;
    return patternScreen(image, u"CILineScreen"_s, settings);
}

/// Brightness and contrast are set before the defaults are, and so don't last.
FilterImage brightened(const FilterImage& tones)
{
    auto controls = Filter::filterWithName(u"CIColorControls"_s);
    controls->setValue(u"inputImage"_s, tones)
        .setValue(u"inputSaturation"_s, 5.0)
        .setValue(u"inputBrightness"_s, 1.0)
        .setValue(u"inputContrast"_s, 5.0)
        .setDefaults();
    return *controls->outputImage();
}

} // namespace

FilterImage filtered(
    const FilterImage& image,
    const QString& filter,
    const QList<std::pair<QString, InputValue>>& inputs
)
{
    auto made = Filter::filterWithName(filter);
    if (!made)
        return image;
    made->setValue(u"inputImage"_s, image).setDefaults();
    for (const auto& [input, value] : inputs)
        made->setValue(input, value);
    return made->outputImage().value_or(image);
}

FilterImage ringScreen(const FilterImage& image, const ScreenSettings& settings)
{
    const auto width = static_cast<float>(image.pixelSize().width);
    const auto height = static_cast<float>(image.pixelSize().height);
    const Point centre
        = {.x = asDouble(settings.centreX * width) / 100.0,
           .y = asDouble(settings.centreY * height) / 100.0};
    const FilterImage pattern = filtered(
        image,
        u"CICircularScreen"_s,
        {{u"inputCenter"_s, centre},
         {u"inputWidth"_s, asDouble(settings.width)},
         {u"inputSharpness"_s, asDouble(settings.sharpness)}}
    );
    return invertedAndMasked(pattern, image, settings);
}

FilterImage
patternScreen(const FilterImage& image, const QString& pattern, const ScreenSettings& settings)
{
    return invertedAndMasked(barePattern(image, pattern, settings), image, settings);
}

FilterImage
wovenScreen(const FilterImage& image, const ScreenSettings& settings, float widthShare, int rounds)
{
    FilterImage woven = image;
    for (int round = 0; round < rounds; ++round) {
        woven = linePass(woven, settings, settings.angle, settings.width);
        woven = linePass(woven, settings, settings.angle + 90.0F, settings.width / widthShare);
    }
    return woven;
}

FilterImage elevenThreadsScreen(const FilterImage& image, const ScreenSettings& settings)
{
    constexpr int passes = 11;
    constexpr float turn = 20;
    FilterImage threads = image;
    for (int pass = 1; pass <= passes; ++pass)
        threads = linePass(threads, settings, turn * static_cast<float>(pass), settings.width);
    return threads;
}

FilterImage nineRingsScreen(const FilterImage& image, const ScreenSettings& settings)
{
    struct Ring
    {
        float change; ///< of the width before, in percent
        float x; ///< percent
        float y;
    };
    static constexpr Ring rings[] = {
        {-10, 0, 0},
        {-25, 0, 33},
        {10, 0, 100},
        {-50, 100, 100},
        {-25, 33, 100},
        {-20, 50, 50},
        {10, 133, 33},
        {40, 100, 0},
        {10, 100, 33},
    };
    FilterImage result = image;
    ScreenSettings pass = settings;
    for (const Ring& ring : rings) {
        pass.width += pass.width * ring.change / 100.0F;
        pass.centreX = ring.x;
        pass.centreY = ring.y;
        result = ringScreen(result, pass);
    }
    return result;
}

FilterImage threeToneScreen(
    const FilterImage& image, const QString& pattern, Tones tones, const ScreenSettings& settings
)
{
    FilterImage toned = filtered(image, u"CIPhotoEffectMono"_s);
    if (tones == Tones::Two)
        toned = filtered(toned, u"CIPhotoEffectNoir"_s);
    const FilterImage bright = brightened(toned);
    const FilterImage& front = settings.isInverted ? image : bright;
    const FilterImage& back = settings.isInverted ? bright : image;
    return filtered(
        front,
        u"CIBlendWithMask"_s,
        {{u"inputBackgroundImage"_s, back},
         {u"inputMaskImage"_s, barePattern(toned, pattern, settings)}}
    );
}

} // namespace brenvaldo::imaging
