// SPDX-License-Identifier: GPL-3.0-or-later
#include "layer_shadow.h"

#include "blurred_plane.h"

#include <algorithm>
#include <cmath>

namespace brenvaldo::platform {

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

QImage colored(const Plane& plane, const Color& color)
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

QImage
shadowOf(const QImage& object, const Shadow& shadow, QPoint shift, int width, int height, Edge edge)
{
    const QImage premultiplied = object.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const Plane alpha = shiftedAlpha(premultiplied, shift, width, height, edge);
    return colored(blurred(alpha, std::min(shadow.blurRadius, softest) / 2, edge), shadow.color);
}

} // namespace

int shadowReach(double blurRadius)
{
    return static_cast<int>(std::ceil(1.5 * std::min(blurRadius, softest)));
}

QImage shadowLayer(const QImage& object, const Shadow& shadow, int margin)
{
    const QPoint shift(margin + shadow.xOffset, margin - shadow.yOffset);
    return shadowOf(
        object, shadow, shift, object.width() + 2 * margin, object.height() + 2 * margin, Edge::Zero
    );
}

QImage tiledShadowLayer(const QImage& cell, const Shadow& shadow)
{
    const QPoint shift(shadow.xOffset, -shadow.yOffset);
    return shadowOf(cell, shadow, shift, cell.width(), cell.height(), Edge::Wrapped);
}

} // namespace brenvaldo::platform
