// SPDX-License-Identifier: GPL-3.0-or-later
#include "filter_table.h"

#include "blur.h"
#include "color_filters.h"
#include "halftone.h"
#include "mask_blend.h"
#include "photo_effect.h"

#include <algorithm>

namespace brenvaldo::platform::filters {

namespace {

template <const PhotoEffect& effect>
FilterImage photoEffect(const FilterImage& image, const FilterInputs& /*inputs*/)
{
    return withPhotoEffect(image, effect);
}

template <Halftone::Pattern pattern>
FilterImage screen(const FilterImage& image, const FilterInputs& inputs)
{
    const Point centre = inputs.point("inputCenter");
    return screened(
        image,
        {.pattern = pattern,
         .centreX = centre.x,
         .centreY = centre.y,
         .width = inputs.number("inputWidth"),
         .angle = inputs.number("inputAngle"),
         .sharpness = inputs.number("inputSharpness")}
    );
}

FilterImage controls(const FilterImage& image, const FilterInputs& inputs)
{
    return withColorControls(
        image,
        {.saturation = inputs.number("inputSaturation"),
         .brightness = inputs.number("inputBrightness"),
         .contrast = inputs.number("inputContrast")}
    );
}

/// Without a mask the image stays; the background is then of no use.
FilterImage blend(const FilterImage& image, const FilterInputs& inputs)
{
    const auto mask = inputs.image("inputMaskImage");
    if (!mask)
        return image;
    const auto background = inputs.image("inputBackgroundImage");
    return blendedWithMask(image, background ? *background : transparent(image), *mask);
}

const std::vector<FilterRow::Input>& lineAndDotInputs()
{
    static const std::vector<FilterRow::Input> inputs = {
        {"inputCenter", Point{150, 150}},
        {"inputAngle", 0.0},
        {"inputWidth", 6.0},
        {"inputSharpness", 0.7},
    };
    return inputs;
}

const std::vector<FilterRow>& filterRows()
{
    static const std::vector<FilterRow> rows = {
        {.name = "CIPhotoEffectNoir", .make = photoEffect<noir>},
        {.name = "CIPhotoEffectMono", .make = photoEffect<mono>},
        {.name = "CIPhotoEffectChrome", .make = photoEffect<chrome>},
        {.name = "CIPhotoEffectProcess", .make = photoEffect<process>},
        {.name = "CIPhotoEffectFade", .make = photoEffect<fade>},
        {.name = "CIPhotoEffectInstant", .make = photoEffect<instant>},
        {.name = "CIPhotoEffectTransfer", .make = photoEffect<transfer>},
        {.name = "CICircularScreen",
         .inputs = {{"inputCenter", Point{150, 150}}, {"inputWidth", 6.0}, {"inputSharpness", 0.7}},
         .make = screen<Halftone::Pattern::Rings>},
        {.name = "CIDotScreen",
         .inputs = lineAndDotInputs(),
         .make = screen<Halftone::Pattern::Dots>},
        {.name = "CILineScreen",
         .inputs = lineAndDotInputs(),
         .make = screen<Halftone::Pattern::Lines>},
        {.name = "CIColorInvert",
         .make = [](const FilterImage& image, const FilterInputs&) { return inverted(image); }},
        {.name = "CIColorMonochrome",
         .inputs
         = {{"inputColor", graphics::Color{.red = 0.6, .green = 0.45, .blue = 0.3}},
            {"inputIntensity", 1.0}},
         .make =
             [](const FilterImage& image, const FilterInputs& inputs) {
                 return monochrome(
                     image, inputs.color("inputColor"), inputs.number("inputIntensity")
                 );
             }},
        {.name = "CIColorPosterize",
         .inputs = {{"inputLevels", 6.0}},
         .make = [](const FilterImage& image, const FilterInputs& inputs
                 ) { return posterized(image, inputs.number("inputLevels")); }},
        {.name = "CISepiaTone",
         .inputs = {{"inputIntensity", 1.0}},
         .make = [](const FilterImage& image, const FilterInputs& inputs
                 ) { return sepiaToned(image, inputs.number("inputIntensity")); }},
        {.name = "CIColorControls",
         .inputs = {{"inputSaturation", 1.0}, {"inputBrightness", 0.0}, {"inputContrast", 1.0}},
         .make = controls},
        {.name = "CIGaussianBlur",
         .inputs = {{"inputRadius", 10.0}},
         .make = [](const FilterImage& image, const FilterInputs& inputs
                 ) { return blurred(image, inputs.number("inputRadius")); }},
        {.name = "CIUnsharpMask",
         .inputs = {{"inputRadius", 2.5}, {"inputIntensity", 0.5}},
         .make =
             [](const FilterImage& image, const FilterInputs& inputs) {
                 return sharpened(
                     image, inputs.number("inputRadius"), inputs.number("inputIntensity")
                 );
             }},
        {.name = "CIBlendWithMask",
         .moreImages = {"inputBackgroundImage", "inputMaskImage"},
         .make = blend},
    };
    return rows;
}

} // namespace

std::optional<FilterImage> FilterInputs::image(const char* name) const
{
    const auto found = m_values.find(QString::fromLatin1(name));
    if (found == m_values.end())
        return std::nullopt;
    return std::get<FilterImage>(found->second);
}

const FilterRow* filterRow(const QString& name)
{
    const auto found
        = std::find_if(filterRows().begin(), filterRows().end(), [&](const FilterRow& row) {
              return name == QLatin1String(row.name);
          });
    return found == filterRows().end() ? nullptr : &*found;
}

} // namespace brenvaldo::platform::filters
