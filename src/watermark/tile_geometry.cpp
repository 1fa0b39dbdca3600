// SPDX-License-Identifier: GPL-3.0-or-later
#include "tile_geometry.h"

namespace brenvaldo::watermark {

using platform::graphics::PixelSize;

QPoint cellCorner(const TileCell& cell, PixelSize overlay, PixelSize photo)
{
    const int left = -tileSpan(photo.width, overlay.width).overhang;
    const int bottom = photo.height + tileSpan(photo.height, overlay.height).overhang;
    return {left, bottom - cell.size.height};
}

QPoint overlayInCell(const TileCell& cell, PixelSize overlay)
{
    return {cell.layerOrigin.x(), cell.size.height - cell.layerOrigin.y() - overlay.height};
}

QRect tiledArea(PixelSize overlay, PixelSize photo)
{
    const TileSpan across = tileSpan(photo.width, overlay.width);
    const TileSpan along = tileSpan(photo.height, overlay.height);
    const int top = photo.height + along.overhang - along.length;
    return {-across.overhang, top, across.length, along.length};
}

int lastStepBefore(int start, int edge, int step)
{
    return start - ((start - edge + step - 1) / step) * step;
}

QList<QRect> stripesAround(const QRect& inner, const QRect& whole)
{
    if (inner.isEmpty())
        return {whole};
    const QRect rows(whole.left(), inner.top(), whole.width(), inner.height());
    QList<QRect> stripes{
        {whole.topLeft(), rows.topRight() - QPoint(0, 1)},
        {rows.bottomLeft() + QPoint(0, 1), whole.bottomRight()},
        {rows.topLeft(), inner.bottomLeft() - QPoint(1, 0)},
        {inner.topRight() + QPoint(1, 0), rows.bottomRight()}};
    stripes.removeIf([](const QRect& stripe) { return stripe.isEmpty(); });
    return stripes;
}

} // namespace brenvaldo::watermark
