// SPDX-License-Identifier: GPL-3.0-or-later
#include "text_mark.h"

#include "text_overlay.h"
#include "tile_geometry.h"
#include "transparent_image.h"

#include <QPainter>

#include <algorithm>

namespace brenvaldo::watermark {

namespace {

using platform::drawing::PlacedLayer;
using platform::drawing::Stamp;
using platform::graphics::PixelSize;

/// Cells up to this many pixels are repeated by the stamp; larger ones are drawn where the photo
/// shows them.
constexpr qint64 largestRepeatedCell = 16'000'000;

/// Sides beyond this many pixels are more than the painter's coordinates bear.
constexpr int longestDrawnSide = 30'000;

QRect rectOf(PixelSize size) { return {0, 0, size.width, size.height}; }

/// The shadow that the finished layer casts when it is drawn on the photo.
std::optional<platform::drawing::Shadow> layerShadow(const TextWatermarkSettings& settings)
{
    return traitsOf(settings.effect).isRelief() ? settings.shadow : std::nullopt;
}

bool isRepeated(PixelSize cell)
{
    return qint64{cell.width} * cell.height <= largestRepeatedCell
        && std::max(cell.width, cell.height) <= longestDrawnSide;
}

Stamp stampOf(const PlacedLayer& piece)
{
    return {.layer = piece.image, .topLeft = piece.topLeft, .repeat = Stamp::Repeat::Once};
}

/// The mark that `render` draws into an area of the photo, with the shadow of its layer.
template <class Render>
PlacedLayer shownIn(const QRect& area, const TextWatermarkSettings& settings, const Render& render)
{
    const auto shadow = layerShadow(settings);
    return shadow ? platform::drawing::withShadow(render, *shadow, area) : render(area);
}

/// Place of the overlay's top left corner on the photo.
QPoint
overlayCorner(const TextWatermarkSettings& settings, const TextOverlay& overlay, PixelSize photo)
{
    const QPoint origin = anchoredOrigin(settings.placement, photo, overlay.size());
    return {origin.x(), photo.height - origin.y() - overlay.size().height};
}

Stamp stampOnce(const TextWatermarkSettings& settings, const TextOverlay& overlay, PixelSize photo)
{
    const QPoint topLeft = overlayCorner(settings, overlay, photo);
    const auto render = [&](const QRect& area) -> PlacedLayer {
        const QRect seen = area.translated(-topLeft).intersected(rectOf(overlay.size()));
        if (seen.isEmpty())
            return {};
        return {
            .image = atOpacity(overlay.rendered(seen), settings.opacity),
            .topLeft = topLeft + seen.topLeft()};
    };
    return stampOf(shownIn(rectOf(photo), settings, render));
}

TileCell cellOf(const TextWatermarkSettings& settings, const TextOverlay& overlay)
{
    return tileCell(overlay.size(), settings.placement.xOffset, settings.placement.yOffset);
}

QImage
drawnCell(const TextWatermarkSettings& settings, const TextOverlay& overlay, const TileCell& cell)
{
    QImage image = transparentImage({cell.size.width, cell.size.height});
    QPainter painter(&image);
    painter.setOpacity(settings.opacity);
    painter.drawImage(
        overlayInCell(cell, overlay.size()), overlay.rendered(rectOf(overlay.size()))
    );
    return image;
}

/// The cells that the photo shows, drawn into one layer of the photo's size.
QImage
cellsOnPhoto(const TextOverlay& overlay, const TileCell& cell, QPoint corner, const QRect& area)
{
    QImage image = transparentImage(area.size());
    if (image.isNull())
        return image;
    QPainter painter(&image);
    painter.translate(-area.topLeft());
    for (int y = lastStepBefore(corner.y(), area.top(), cell.size.height); y <= area.bottom();
         y += cell.size.height) {
        for (int x = lastStepBefore(corner.x(), area.left(), cell.size.width); x <= area.right();
             x += cell.size.width) {
            const QPoint topLeft = QPoint(x, y) + overlayInCell(cell, overlay.size());
            const QRect cellOnPhoto(x, y, cell.size.width, cell.size.height);
            const QRect seen = area.intersected(cellOnPhoto)
                                   .translated(-topLeft)
                                   .intersected(rectOf(overlay.size()));
            if (!seen.isEmpty())
                painter.drawImage(topLeft + seen.topLeft(), overlay.rendered(seen));
        }
    }
    return image;
}

/// A part of `cell` repeated without end, one of which stands at `topLeft` of the part.
QImage repeated(const QImage& cell, QPoint topLeft, const QSize& part)
{
    QImage image = transparentImage(part);
    if (image.isNull())
        return image;
    QPainter painter(&image);
    painter.setBrushOrigin(topLeft);
    painter.fillRect(image.rect(), QBrush(cell));
    return image;
}

/// Lays the shadow of the cells that are drawn in `tiled` into `stamp`, which repeats their cell.
void castShadow(
    Stamp& stamp, const platform::drawing::Shadow& shadow, const QRect& tiled, const QRect& photo
)
{
    if (!platform::drawing::castingInto(photo, shadow).intersects(tiled))
        return;
    const QImage cell = stamp.layer;
    const auto render = [&](const QRect& area) -> PlacedLayer {
        const QRect drawn = area.intersected(tiled);
        return {
            .image = repeated(cell, stamp.topLeft - drawn.topLeft(), drawn.size()),
            .topLeft = drawn.topLeft()};
    };
    stamp.layer = platform::drawing::cellWithShadow(cell, shadow);
    // The cells end not far outside of the photo: near its edges their shadow is another.
    const QRect even = platform::drawing::inEvenShadowOf(tiled, shadow).intersected(photo);
    for (const QRect& stripe : stripesAround(even, photo)) {
        const PlacedLayer piece = platform::drawing::withShadow(render, shadow, stripe);
        stamp.patches.append({.layer = piece.image, .topLeft = piece.topLeft});
    }
}

Stamp stampRepeated(
    const TextWatermarkSettings& settings,
    const TextOverlay& overlay,
    const TileCell& cell,
    PixelSize photo
)
{
    Stamp stamp{
        .layer = drawnCell(settings, overlay, cell),
        .topLeft = cellCorner(cell, overlay.size(), photo),
        .repeat = Stamp::Repeat::Tiled};
    if (const auto shadow = layerShadow(settings))
        castShadow(stamp, *shadow, tiledArea(overlay.size(), photo), rectOf(photo));
    return stamp;
}

Stamp stampTiled(const TextWatermarkSettings& settings, const TextOverlay& overlay, PixelSize photo)
{
    const TileCell cell = cellOf(settings, overlay);
    if (!cell.size.isValid())
        return {};
    if (isRepeated(cell.size))
        return stampRepeated(settings, overlay, cell, photo);
    const QPoint corner = cellCorner(cell, overlay.size(), photo);
    const QRect tiled = tiledArea(overlay.size(), photo);
    const auto render = [&](const QRect& area) -> PlacedLayer {
        const QRect drawn = area.intersected(tiled);
        return {
            .image = atOpacity(cellsOnPhoto(overlay, cell, corner, drawn), settings.opacity),
            .topLeft = drawn.topLeft()};
    };
    return stampOf(shownIn(rectOf(photo), settings, render));
}

/// How the picture lies on a stamp of `overlay`.
Stamp::Texture textureOn(
    const Stamp& stamp,
    const TextWatermarkSettings& settings,
    const TextOverlay& overlay,
    PixelSize photo
)
{
    Stamp::Texture texture{
        .picture = *overlay.picture(), .share = {}, .toPicture = overlay.toPicture()};
    if (!settings.isTiled) {
        texture.origin = overlayCorner(settings, overlay, photo) - stamp.topLeft;
        return texture;
    }
    const TileCell cell = cellOf(settings, overlay);
    const QPoint inCell = overlayInCell(cell, overlay.size());
    texture.toPicture = QTransform::fromTranslate(-inCell.x(), -inCell.y()) * texture.toPicture;
    texture.origin = cellCorner(cell, overlay.size(), photo) - stamp.topLeft;
    texture.period = {cell.size.width, cell.size.height};
    return texture;
}

/// Takes from `layer`, drawn in black, what its twin in white is brighter by: the share of the ink.
QImage takenInk(QImage& layer, const QImage& white)
{
    QImage share(layer.size(), QImage::Format_Grayscale8);
    for (int y = 0; y < layer.height(); ++y) {
        auto* rest = reinterpret_cast<QRgb*>(layer.scanLine(y));
        const auto* twin = reinterpret_cast<const QRgb*>(white.constScanLine(y));
        uchar* shares = share.scanLine(y);
        for (int x = 0; x < layer.width(); ++x) {
            shares[x] = static_cast<uchar>(std::max(0, qRed(twin[x]) - qRed(rest[x])));
            const int alpha = std::max(0, qAlpha(rest[x]) - shares[x]);
            rest[x] = qRgba(
                std::min(qRed(rest[x]), alpha),
                std::min(qGreen(rest[x]), alpha),
                std::min(qBlue(rest[x]), alpha),
                alpha
            );
        }
    }
    return share;
}

Stamp placed(const TextWatermarkSettings& settings, const TextOverlay& overlay, PixelSize photo)
{
    if (!overlay.size().isValid())
        return {};
    return settings.isTiled ? stampTiled(settings, overlay, photo)
                            : stampOnce(settings, overlay, photo);
}

/// The mark whose glyphs show the overlay's picture.
Stamp filledStamp(
    const TextWatermarkSettings& settings, const TextOverlay& overlay, PixelSize photo
)
{
    Stamp stamp = placed(settings, overlay, photo);
    if (stamp.layer.isNull())
        return stamp;
    const Stamp white = placed(settings, overlay.inkedWith(Qt::white), photo);
    stamp.texture = textureOn(stamp, settings, overlay, photo);
    stamp.texture->share = takenInk(stamp.layer, white.layer);
    return stamp;
}

} // namespace

Stamp textMark(
    const TextWatermarkSettings& settings,
    const QString& text,
    const QFont& font,
    const platform::graphics::Image& photo
)
{
    const TextOverlay overlay(settings, text, font, photo);
    if (overlay.picture())
        return filledStamp(settings, overlay, photo.pixelSize());
    // Glyphs that a damaged photo should fill can't be drawn.
    if (traitsOf(settings.effect).fillsWithPhoto())
        return {};
    return placed(settings, overlay, photo.pixelSize());
}

} // namespace brenvaldo::watermark
