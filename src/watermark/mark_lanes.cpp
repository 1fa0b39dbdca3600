// SPDX-License-Identifier: GPL-3.0-or-later
#include "mark_lanes.h"

#include "mark_layer.h"
#include "tile_geometry.h"
#include "watermark_rules.h"

#include <imaging/dv_image_handling.h>
#include <imaging/rotate_rules.h>
#include <platform/drawing/clear_layer.h>
#include <platform/drawing/turned_tiles.h>

#include <algorithm>

namespace brenvaldo::watermark {

using imaging::DVImageHandling;
using platform::graphics::Image;
using platform::graphics::PixelSize;

namespace {

PixelSize sizeOf(const QRect& area) { return {.width = area.width(), .height = area.height()}; }

LaneResult damaged() { return {.isDamaged = true}; }

/// The image scaled and turned.
std::optional<Image>
singleLayer(const ImageWatermarkSettings& settings, const Image& image, const MarkedSize& photo)
{
    Image layer = platform::drawing::clearLayer(image);
    if (settings.fade) {
        const QSizeF size = matchedSize(image, photo.dotsPerInch);
        layer = platform::drawing::faded(layer, fadeMask(*settings.fade, size, Lane::Single));
    }
    layer = filtered(layer, settings.filter, settings.screen);
    const auto sized = scaled(layer, settings.scale, photo.pixels);
    if (!sized)
        return std::nullopt;
    return DVImageHandling::hRotatePictureBase(*sized, static_cast<float>(settings.angle));
}

std::optional<PlacedImage>
placedOnce(const ImageWatermarkSettings& settings, const Image& image, const MarkedSize& photo)
{
    const auto layer = singleLayer(settings, image, photo);
    if (!layer)
        return std::nullopt;
    const auto origin = insetOrigin(settings.inset, photo.pixels, layer->pixelSize());
    if (!origin)
        return std::nullopt;
    const int top = photo.pixels.height - origin->y() - layer->height();
    return PlacedImage{.image = *layer, .topLeft = {origin->x(), top}};
}

/// The cell that is repeated over an area, as far as it shows there: the bottom left corner of one
/// is that of the area.
Image cellFor(const Image& layer, const TileCell& cell, PixelSize area)
{
    const PixelSize shown
        = {.width = std::min(cell.size.width, area.width),
           .height = std::min(cell.size.height, area.height)};
    const int top = shown.height - cell.layerOrigin.y() - layer.height();
    return platform::drawing::onClearCanvas(layer, shown, {cell.layerOrigin.x(), top});
}

LaneResult uprightTiles(const Image& layer, const TileCell& cell, PixelSize photo)
{
    const QRect area = tiledArea(layer.pixelSize(), photo);
    const auto drawn = cellFor(layer, cell, sizeOf(area)).copiedToMemory();
    if (!drawn)
        return damaged();
    const QPoint corner(0, area.height() - drawn->height());
    return {
        .layer
        = {{.image = platform::drawing::repeated(*drawn, sizeOf(area), corner),
            .topLeft = area.topLeft()}},
        .cell = {{.image = *drawn, .topLeft = area.topLeft() + corner}}};
}

/// What tiles turn about: after a quarter turn their pixels are to lie on those of the photo.
QPointF turningPoint(PixelSize photo, int angle)
{
    if (imaging::quarterTurns(angle))
        return QPoint(photo.width / 2, photo.height / 2);
    return QPointF(photo.width, photo.height) / 2;
}

/// Tiles around the middle of a square block that covers the photo at any angle.
LaneResult turnedTiles(const Image& layer, const TileCell& cell, int angle, PixelSize photo)
{
    const QRect area = tiledArea(layer.pixelSize(), photo);
    const int side = sideThatSurvivesTurning(area.width(), area.height());
    const auto drawn = cellFor(layer, cell, {.width = side, .height = side}).copiedToMemory();
    if (!drawn)
        return damaged();
    const Image turned = platform::drawing::turnedTiles(
        *drawn,
        {.degrees = static_cast<double>(angle),
         .canvas = photo,
         .centre = turningPoint(photo, angle),
         .inCell = QPoint(side / 2, drawn->height() - side / 2)}
    );
    return {.layer = {{.image = turned, .topLeft = {}}}};
}

LaneResult fadedTiles(const LaneResult& tiles, const FadeRule& fade)
{
    PlacedImage layer = *tiles.layer;
    const QSizeF size(layer.image.width(), layer.image.height());
    layer.image = platform::drawing::faded(layer.image, fadeMask(fade, size, Lane::Pattern));
    return {.layer = layer};
}

} // namespace

std::optional<PlacedImage> partIn(const PlacedImage& layer, const QRect& area)
{
    const QRect all(layer.topLeft, QSize(layer.image.width(), layer.image.height()));
    const QRect part = all.intersected(area);
    if (part.isEmpty())
        return std::nullopt;
    const QPoint place = part.topLeft() - layer.topLeft;
    const auto cropped = layer.image.croppedTo(
        {.x = place.x(), .y = place.y(), .width = part.width(), .height = part.height()}
    );
    return cropped ? std::optional(PlacedImage{.image = *cropped, .topLeft = part.topLeft()})
                   : std::nullopt;
}

LaneResult singleLane(
    const ImageWatermarkSettings& settings,
    const Image& image,
    const MarkedSize& photo,
    const QRect& area
)
{
    const auto laid = placedOnce(settings, image, photo);
    const auto shown = laid ? partIn(*laid, area) : std::nullopt;
    if (!shown)
        return {};
    const auto drawn = shown->image.copiedToMemory();
    if (!drawn)
        return damaged();
    return {.layer = {{.image = *drawn, .topLeft = shown->topLeft}}};
}

LaneResult patternLane(
    const ImageWatermarkSettings& settings,
    const Image& image,
    const MarkedSize& photo,
    const QRect& area
)
{
    const Image layer
        = filtered(platform::drawing::clearLayer(image), settings.filter, settings.screen);
    const auto sized = scaled(layer, settings.scale, photo.pixels);
    if (!sized)
        return {};
    const TileCell cell
        = tileCell(sized->pixelSize(), settings.inset.xOffset, settings.inset.yOffset);
    if (!cell.size.isValid())
        return {};
    LaneResult tiles = settings.angle == 0
        ? uprightTiles(*sized, cell, photo.pixels)
        : turnedTiles(*sized, cell, settings.angle, photo.pixels);
    if (tiles.layer && settings.fade)
        tiles = fadedTiles(tiles, *settings.fade);
    if (tiles.layer)
        tiles.layer = partIn(*tiles.layer, area);
    return tiles;
}

} // namespace brenvaldo::watermark
