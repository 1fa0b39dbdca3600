// SPDX-License-Identifier: GPL-3.0-or-later
#include "text_mark.h"

#include "text_overlay.h"

#include <QPainter>

#include <algorithm>

namespace brenvaldo::watermark {

namespace {

using platform::PixelSize;
using platform::Stamp;

/// Cells up to this many pixels are repeated by the stamp; larger ones are drawn where the photo
/// shows them.
constexpr qint64 largestRepeatedCell = 16'000'000;

/// Sides beyond this many pixels are more than the painter's coordinates bear.
constexpr int longestDrawnSide = 30'000;

QImage transparent(const QSize& size)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

QRect rectOf(PixelSize size) { return {0, 0, size.width, size.height}; }

/// The shadow that the finished layer casts when it is drawn on the photo.
std::optional<platform::Shadow> layerShadow(const TextWatermarkSettings& settings)
{
    return traitsOf(settings.effect).isRelief() ? settings.shadow : std::nullopt;
}

bool isRepeated(PixelSize cell)
{
    return qint64{cell.width} * cell.height <= largestRepeatedCell
        && std::max(cell.width, cell.height) <= longestDrawnSide;
}

/// A picture and its place on the photo.
struct Piece
{
    QImage image;
    QPoint topLeft;

    [[nodiscard]] QRect area() const { return {topLeft, image.size()}; }
};

QPoint shiftOf(const platform::Shadow& shadow) { return {shadow.xOffset, -shadow.yOffset}; }

/// Where something that throws a shadow onto `photo` can stand.
QRect castingOnto(const QRect& photo, const platform::Shadow& shadow)
{
    const int reach = platform::shadowReach(shadow.blurRadius);
    return photo.translated(-shiftOf(shadow)).adjusted(-reach, -reach, reach, reach);
}

/// The shadow that `caster` throws.
Piece shadowOf(const Piece& caster, platform::Shadow shadow)
{
    const int reach = platform::shadowReach(shadow.blurRadius);
    const QPoint topLeft = caster.topLeft + shiftOf(shadow) - QPoint(reach, reach);
    shadow.xOffset = 0;
    shadow.yOffset = 0;
    return {.image = platform::shadowLayer(caster.image, shadow, reach), .topLeft = topLeft};
}

/// `layer` at the strength of the drawing fraction.
QImage faded(const QImage& layer, double fraction)
{
    QImage image = transparent(layer.size());
    if (image.isNull())
        return image;
    QPainter painter(&image);
    painter.setOpacity(fraction);
    painter.drawImage(0, 0, layer);
    return image;
}

/// Both pieces, the second above the first, as far as the photo shows them.
Piece composed(const Piece& below, const Piece& above, const QRect& photo)
{
    const QRect area = photo.intersected(below.area().united(above.area()));
    QImage image = transparent(area.size());
    if (image.isNull())
        return {};
    QPainter painter(&image);
    painter.translate(-area.topLeft());
    painter.drawImage(below.topLeft, below.image);
    painter.drawImage(above.topLeft, above.image);
    return {.image = image, .topLeft = area.topLeft()};
}

Stamp stampOf(const Piece& piece)
{
    return {.layer = piece.image, .topLeft = piece.topLeft, .repeat = Stamp::Repeat::Once};
}

/// The mark that `render` draws into an area of the photo, with its shadow.
template <class Render>
Stamp markWithShadow(
    const std::optional<platform::Shadow>& shadow, const QRect& photo, const Render& render
)
{
    const Piece object = render(photo);
    if (!shadow)
        return stampOf(object);
    return stampOf(composed(shadowOf(render(castingOnto(photo, *shadow)), *shadow), object, photo));
}

Stamp stampOnce(const TextWatermarkSettings& settings, const TextOverlay& overlay, PixelSize photo)
{
    const QPoint origin = anchoredOrigin(settings.placement, photo, overlay.size());
    const QPoint topLeft(origin.x(), photo.height - origin.y() - overlay.size().height);
    const auto render = [&](const QRect& area) -> Piece {
        const QRect seen = area.translated(-topLeft).intersected(rectOf(overlay.size()));
        if (seen.isEmpty())
            return {};
        return {
            .image = faded(overlay.rendered(seen), settings.opacity),
            .topLeft = topLeft + seen.topLeft()};
    };
    return markWithShadow(layerShadow(settings), rectOf(photo), render);
}

/// Top left corner, on the photo, of one of the cells that cover it.
QPoint cellCorner(const TileCell& cell, PixelSize overlay, PixelSize photo)
{
    const int left = -tileSpan(photo.width, overlay.width).overhang;
    const int bottom = photo.height + tileSpan(photo.height, overlay.height).overhang;
    return {left, bottom - cell.size.height};
}

/// Place of the overlay's top left corner in the cell.
QPoint overlayInCell(const TileCell& cell, PixelSize overlay)
{
    return {cell.layerOrigin.x(), cell.size.height - cell.layerOrigin.y() - overlay.height};
}

Stamp repeatedCell(
    const TextWatermarkSettings& settings, const TextOverlay& overlay, const TileCell& cell
)
{
    QImage image = transparent({cell.size.width, cell.size.height});
    QPainter painter(&image);
    painter.setOpacity(settings.opacity);
    painter.drawImage(
        overlayInCell(cell, overlay.size()), overlay.rendered(rectOf(overlay.size()))
    );
    painter.end();
    if (const auto shadow = layerShadow(settings)) {
        const Piece object{.image = image, .topLeft = {}};
        const Piece cast{.image = platform::tiledShadowLayer(image, *shadow), .topLeft = {}};
        image = composed(cast, object, object.area()).image;
    }
    return {.layer = image, .topLeft = {}, .repeat = Stamp::Repeat::Tiled};
}

/// The largest of `start`, `start` - `step`, ... that does not lie behind `edge`, one step earlier
/// at the most.
int lastStepBefore(int start, int edge, int step)
{
    return start - ((start - edge + step - 1) / step) * step;
}

/// The cells that the photo shows, drawn into one layer of the photo's size.
QImage
cellsOnPhoto(const TextOverlay& overlay, const TileCell& cell, QPoint corner, const QRect& area)
{
    QImage image = transparent(area.size());
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

Stamp stampTiled(const TextWatermarkSettings& settings, const TextOverlay& overlay, PixelSize photo)
{
    const TileCell cell
        = tileCell(overlay.size(), settings.placement.xOffset, settings.placement.yOffset);
    if (!cell.size.isValid())
        return {};
    const QPoint corner = cellCorner(cell, overlay.size(), photo);
    if (isRepeated(cell.size)) {
        Stamp stamp = repeatedCell(settings, overlay, cell);
        stamp.topLeft = corner;
        return stamp;
    }
    const auto render = [&](const QRect& area) -> Piece {
        return {
            .image = faded(cellsOnPhoto(overlay, cell, corner, area), settings.opacity),
            .topLeft = area.topLeft()};
    };
    return markWithShadow(layerShadow(settings), rectOf(photo), render);
}

} // namespace

Stamp textMark(
    const TextWatermarkSettings& settings,
    const QString& text,
    const QFont& font,
    const platform::Image& photo
)
{
    const TextOverlay overlay(settings, text, font, photo);
    if (!overlay.size().isValid())
        return {};
    return settings.isTiled ? stampTiled(settings, overlay, photo.pixelSize())
                            : stampOnce(settings, overlay, photo.pixelSize());
}

} // namespace brenvaldo::watermark
