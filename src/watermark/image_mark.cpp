// SPDX-License-Identifier: GPL-3.0-or-later
#include "image_mark.h"

#include "mark_lanes.h"
#include "mark_layer.h"
#include "transparent_image.h"

#include <imaging/dv_image_handling.h>
#include <platform/drawing/blending.h>
#include <platform/drawing/clear_layer.h>
#include <platform/drawing/laid_under.h>

namespace brenvaldo::watermark {

using imaging::DVImageHandling;
using platform::drawing::Stamp;
using platform::graphics::Image;
using platform::graphics::PixelRect;
using platform::graphics::PixelSize;

namespace {

QRect rectOf(PixelSize size) { return {0, 0, size.width, size.height}; }

PixelRect pixelRect(const QRect& rect)
{
    return {.x = rect.x(), .y = rect.y(), .width = rect.width(), .height = rect.height()};
}

/// Handy tiles that take the place of what is below are laid as they are.
std::optional<Stamp> stampOf(const LaneResult& made, const ImageWatermarkSettings& settings)
{
    constexpr qint64 mostPixels = 4'000'000;
    if (!made.cell || settings.blendMode != platform::drawing::BlendMode::Normal)
        return std::nullopt;
    const Image& cell = made.cell->image;
    if (qint64{cell.width()} * cell.height() > mostPixels)
        return std::nullopt;
    return Stamp{
        .layer = atOpacity(cell.toQImage(), settings.opacity),
        .topLeft = made.cell->topLeft,
        .repeat = Stamp::Repeat::Tiled};
}

/// The shadow of what stands on a photo, as far as it falls on it.
std::optional<PlacedImage>
shadowOn(const PlacedImage& layer, const MarkShadow& shadow, PixelSize photo)
{
    const CastShadow cast = castBy(layer.image, layer.topLeft, shadow);
    return partIn({.image = cast.image, .topLeft = cast.topLeft}, rectOf(photo));
}

/// A single image's shadow is small enough to be kept.
std::optional<PlacedImage> kept(const std::optional<PlacedImage>& shadow, Lane lane)
{
    if (!shadow || lane == Lane::Pattern)
        return shadow;
    const auto drawn = shadow->image.copiedToMemory();
    return drawn ? std::optional(PlacedImage{*drawn, shadow->topLeft}) : std::nullopt;
}

/// The photo above its own shadow.
Image aboveItsShadow(const Image& photo, const MarkShadow& shadow)
{
    const auto shape = platform::drawing::shapeOf(photo);
    const auto cast = shape ? shadowOn({.image = *shape, .topLeft = {}}, shadow, photo.pixelSize())
                            : std::nullopt;
    if (!cast)
        return photo;
    return platform::drawing::withLayerBelow(
        photo, platform::drawing::onClearCanvas(cast->image, photo.pixelSize(), cast->topLeft)
    );
}

QRect areaOf(const LaidLayer& layer)
{
    return {layer.topLeft, QSize(layer.image.width(), layer.image.height())};
}

/// The part of a photo that the mark changes.
QRect changedPart(const Image& photo, const ImageMark& mark)
{
    const QRect all = rectOf(photo.pixelSize());
    if (mark.stamp || (mark.shadow && photo.hasAlpha()))
        return all;
    QRect part;
    for (const LaidLayer& layer : mark.layers)
        part = part.united(areaOf(layer).intersected(all));
    return part;
}

} // namespace

MarkedSize markedSizeOf(const Image& photo)
{
    DVImageHandling handling;
    return {.pixels = photo.pixelSize(), .dotsPerInch = handling.hGetNSImgResolution(photo)};
}

std::optional<ImageMark>
preparedMark(const ImageWatermarkSettings& settings, const Image& image, const MarkedSize& photo)
{
    ImageMark mark{
        .layers = {}, .stamp = {}, .opacity = settings.opacity, .shadow = settings.shadow};
    if (!settings.blendMode)
        return mark;
    const auto lane = settings.lane == Lane::Pattern ? patternLane : singleLane;
    const LaneResult made
        = lane(settings, image, photo, shownIn(rectOf(photo.pixels), settings.shadow));
    if (made.isDamaged)
        return std::nullopt;
    if (!made.layer)
        return mark;
    if (settings.shadow) {
        const auto cast
            = kept(shadowOn(*made.layer, *settings.shadow, photo.pixels), settings.lane);
        if (cast)
            mark.layers.push_back({.image = cast->image, .topLeft = cast->topLeft});
    }
    mark.stamp = stampOf(made, settings);
    if (!mark.stamp)
        mark.layers.push_back(
            {.image = made.layer->image,
             .topLeft = made.layer->topLeft,
             .mode = *settings.blendMode}
        );
    return mark;
}

platform::drawing::MarkedPhoto laidOn(const Image& photo, const ImageMark& mark)
{
    Image picture = mark.shadow ? aboveItsShadow(photo, *mark.shadow) : photo;
    for (const LaidLayer& layer : mark.layers) {
        picture = platform::drawing::blended(
            picture,
            layer.image,
            {.topLeft = layer.topLeft, .mode = layer.mode, .opacity = mark.opacity}
        );
    }
    if (mark.stamp)
        picture = platform::drawing::stamped(picture, *mark.stamp);
    return {.picture = picture, .part = pixelRect(changedPart(photo, mark))};
}

} // namespace brenvaldo::watermark
