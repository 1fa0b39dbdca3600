// SPDX-License-Identifier: GPL-3.0-or-later
#include "layer_shadow.h"

#include "blurred_plane.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace brenvaldo::platform::drawing {

namespace {

/// Blur radii beyond this look like it: the shadow has dissolved.
constexpr double softest = 1000;

int wrapped(int value, int size) { return ((value % size) + size) % size; }

Plane shiftedAlpha(const QImage& object, QPoint shift, int width, int height, Edge edge)
{
    Plane plane = emptyPlane(width, height);
    const bool wraps = edge == Edge::Wrapped;
    const int left = wraps ? wrapped(shift.x(), width) : shift.x();
    for (int y = 0; y < object.height(); ++y) {
        const int toY = wraps ? wrapped(y + shift.y(), height) : y + shift.y();
        if (toY < 0 || toY >= height)
            continue;
        const auto* pixels = reinterpret_cast<const QRgb*>(object.constScanLine(y));
        float* row = plane.row(toY);
        for (int x = 0; x < object.width(); ++x) {
            int toX = x + left;
            if (wraps && toX >= width)
                toX -= width;
            if (toX >= 0 && toX < width)
                row[toX] = static_cast<float>(qAlpha(pixels[x])) / 255.0F;
        }
    }
    return plane;
}

QImage colored(const Plane& plane, const graphics::Color& color)
{
    QImage layer(plane.width, plane.height, QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < plane.height; ++y) {
        auto* pixels = reinterpret_cast<QRgb*>(layer.scanLine(y));
        const float* row = plane.row(y);
        for (int x = 0; x < plane.width; ++x) {
            if (row[x] <= 0) {
                pixels[x] = 0;
                continue;
            }
            const double alpha
                = 255 * color.alpha * std::clamp(static_cast<double>(row[x]), 0.0, 1.0);
            const auto byte = [](double value) { return static_cast<int>(value + 0.5); };
            pixels[x] = qRgba(
                byte(color.red * alpha),
                byte(color.green * alpha),
                byte(color.blue * alpha),
                byte(alpha)
            );
        }
    }
    return layer;
}

QImage castShadow(
    const QImage& object, const Shadow& shadow, QPoint shift, int width, int height, Edge edge
)
{
    const QImage premultiplied = object.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const Plane alpha = shiftedAlpha(premultiplied, shift, width, height, edge);
    return colored(blurred(alpha, std::min(shadow.blurRadius, softest) / 2, edge), shadow.color);
}

QPoint shiftOf(const Shadow& shadow) { return {shadow.xOffset, -shadow.yOffset}; }

/// Both layers, the second above the first, as far as `area` shows them.
PlacedLayer composed(const PlacedLayer& below, const PlacedLayer& above, const QRect& area)
{
    const QRect shown = area.intersected(below.area().united(above.area()));
    QImage image(shown.size(), QImage::Format_ARGB32_Premultiplied);
    if (image.isNull())
        return {};
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.translate(-shown.topLeft());
    painter.drawImage(below.topLeft, below.image);
    painter.drawImage(above.topLeft, above.image);
    return {.image = image, .topLeft = shown.topLeft()};
}

} // namespace

int shadowReach(double blurRadius)
{
    return static_cast<int>(std::ceil(1.5 * std::min(blurRadius, softest)));
}

QImage shadowLayer(const QImage& object, const Shadow& shadow, int margin)
{
    const QPoint shift(margin + shadow.xOffset, margin - shadow.yOffset);
    return castShadow(
        object, shadow, shift, object.width() + 2 * margin, object.height() + 2 * margin, Edge::Zero
    );
}

PlacedLayer shadowOf(const PlacedLayer& caster, const Shadow& shadow)
{
    const int reach = shadowReach(shadow.blurRadius);
    Shadow inPlace = shadow;
    inPlace.xOffset = 0;
    inPlace.yOffset = 0;
    return {
        .image = shadowLayer(caster.image, inPlace, reach),
        .topLeft = caster.topLeft + shiftOf(shadow) - QPoint(reach, reach)};
}

QRect castingInto(const QRect& area, const Shadow& shadow)
{
    const int reach = shadowReach(shadow.blurRadius);
    return area.translated(-shiftOf(shadow)).adjusted(-reach, -reach, reach, reach);
}

QRect inEvenShadowOf(const QRect& area, const Shadow& shadow)
{
    const int reach = shadowReach(shadow.blurRadius);
    const QRect even = area.translated(shiftOf(shadow)).adjusted(reach, reach, -reach, -reach);
    return even.isEmpty() ? QRect() : even;
}

PlacedLayer withShadow(
    const std::function<PlacedLayer(const QRect&)>& render, const Shadow& shadow, const QRect& area
)
{
    return composed(shadowOf(render(castingInto(area, shadow)), shadow), render(area), area);
}

QImage cellWithShadow(const QImage& cell, const Shadow& shadow)
{
    const PlacedLayer object{.image = cell, .topLeft = {}};
    return composed({.image = tiledShadowLayer(cell, shadow), .topLeft = {}}, object, object.area())
        .image;
}

QImage tiledShadowLayer(const QImage& cell, const Shadow& shadow)
{
    return castShadow(cell, shadow, shiftOf(shadow), cell.width(), cell.height(), Edge::Wrapped);
}

} // namespace brenvaldo::platform::drawing
