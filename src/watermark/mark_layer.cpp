// SPDX-License-Identifier: GPL-3.0-or-later
#include "mark_layer.h"

#include <imaging/dv_image_handling.h>
#include <imaging/resolution_rules.h>
#include <imaging/screen_recipes.h>
#include <platform/drawing/clear_layer.h>
#include <platform/drawing/layer_shadow.h>
#include <platform/filters/filter.h>
#include <platform/foundation/literals.h>

namespace brenvaldo::watermark {

using imaging::DVImageHandling;
using imaging::FilterImage;
using imaging::ScreenSettings;
using platform::graphics::Image;
using platform::graphics::PixelSize;

namespace {

FilterImage withFilter(const FilterImage& image, MarkFilter filter, const ScreenSettings& screen)
{
    ScreenSettings clockwise = screen;
    switch (filter) {
    case MarkFilter::None:
        break;
    case MarkFilter::Noir:
        return imaging::filtered(image, u"CIPhotoEffectNoir"_s);
    case MarkFilter::Negative:
        return imaging::filtered(image, u"CIColorInvert"_s);
    case MarkFilter::Dots:
        clockwise.angle = -screen.angle;
        return imaging::patternScreen(image, u"CIDotScreen"_s, clockwise);
    case MarkFilter::Lines: // turns against the angle
        return imaging::patternScreen(image, u"CILineScreen"_s, clockwise);
    case MarkFilter::Rings:
        return imaging::ringScreen(image, screen);
    }
    return image;
}

platform::drawing::Shadow drawn(const MarkShadow& shadow)
{
    return {
        .color = shadow.color,
        .xOffset = shadow.xOffset,
        .yOffset = shadow.yOffset,
        .blurRadius = static_cast<double>(std::max(0, shadow.blurRadius))};
}

} // namespace

QSizeF matchedSize(const Image& image, double dotsPerInch)
{
    DVImageHandling handling;
    const PixelSize pixels = image.pixelSize();
    if (handling.hGetNSImgResolution(image) == dotsPerInch)
        return QSizeF(pixels.width, pixels.height);
    return imaging::pointsAtResolution(pixels, dotsPerInch);
}

Image filtered(const Image& layer, MarkFilter filter, const ScreenSettings& screen)
{
    if (filter == MarkFilter::None)
        return layer;
    return withFilter(FilterImage(layer), filter, screen).toImage(layer);
}

std::optional<Image> scaled(const Image& layer, const ScaleRule& rule, PixelSize photo)
{
    const auto factor = scalingOf(scaleFactorText(rule, photo, layer.pixelSize()));
    const Image inPixels = layer.withDotsPerInch(imaging::pointsPerInch);
    return factor ? DVImageHandling::hScalePictureBase(inPixels, *factor) : inPixels;
}

CastShadow castBy(const Image& layer, QPoint topLeft, const MarkShadow& shadow)
{
    const platform::drawing::Shadow cast = drawn(shadow);
    const int reach = platform::drawing::shadowReach(cast.blurRadius);
    const PixelSize grown
        = {.width = layer.width() + 2 * reach, .height = layer.height() + 2 * reach};
    const Image object = platform::drawing::onClearCanvas(layer, grown, {reach, reach});
    constexpr double softest = 1000; // beyond it the shadow has dissolved
    const double sigma = std::min(cast.blurRadius, softest) / 2;
    const Image soft = imaging::filtered(
                           FilterImage(object), u"CIGaussianBlur"_s, {{u"inputRadius"_s, sigma}}
    ).toImage(object);
    return {
        .image = platform::drawing::inked(soft, cast.color),
        .topLeft = topLeft + QPoint(cast.xOffset - reach, -cast.yOffset - reach)};
}

QRect shownIn(const QRect& area, const std::optional<MarkShadow>& shadow)
{
    return shadow ? area.united(platform::drawing::castingInto(area, drawn(*shadow))) : area;
}

} // namespace brenvaldo::watermark
