// SPDX-License-Identifier: GPL-3.0-or-later
#include "dashed_rectangle.h"

#include "stamp.h"

#include <platform/graphics/image_node.h>
#include <platform/graphics/qt_color.h>

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace brenvaldo::platform::drawing {

using graphics::Image;
using graphics::ImageNode;
using graphics::PixelSize;

namespace {

/// A side of the rectangle, from where its first dash begins.
struct Side
{
    QPointF from;
    QPointF direction; ///< of length 1
    double length = 0;

    [[nodiscard]] QPointF at(double distance) const { return from + direction * distance; }
};

QRectF widened(const QRectF& rect, double by) { return rect.adjusted(-by, -by, by, by); }

/// What a part of a side covers, its caps included.
QRectF covered(const Side& side, double begin, double end, double lineWidth)
{
    return widened(QRectF(side.at(begin), side.at(end)).normalized(), lineWidth / 2);
}

/// Pixels that `side` touches within a picture of `size`.
QRect touched(const Side& side, double lineWidth, PixelSize size)
{
    return covered(side, 0, side.length, lineWidth)
        .intersected(QRectF(0, 0, size.width, size.height))
        .toAlignedRect();
}

/// How far along the side the corner of `rect` lies that comes first, and the one that comes last.
std::pair<double, double> reachOf(const QRectF& rect, const Side& side)
{
    const auto distance = [&side](const QPointF& point) {
        return QPointF::dotProduct(point - side.from, side.direction);
    };
    return std::minmax({distance(rect.topLeft()), distance(rect.bottomRight())});
}

QImage drawn(const DashedRectangle& rectangle, const Side& side, const QRect& area)
{
    QImage layer(area.size(), QImage::Format_ARGB32_Premultiplied);
    layer.fill(Qt::transparent);
    QPainter painter(&layer);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(-area.topLeft());
    const double period = 2 * rectangle.dashLength;
    const auto [first, last] = reachOf(widened(area, rectangle.lineWidth), side);
    const double begin = std::max(0.0, std::floor(first / period) * period);
    const double end = std::min(side.length, last);
    for (double dash = begin; dash <= end; dash += period) {
        const double dashEnd = std::min(dash + rectangle.dashLength, side.length);
        painter.fillRect(
            covered(side, dash, dashEnd, rectangle.lineWidth), graphics::qtColor(rectangle.color)
        );
    }
    return layer;
}

Image transparentPicture(PixelSize size)
{
    constexpr int bands = 4;
    ImageNode node;
    node.hasAlpha = true;
    return graphics::builtImage(node, size, [&] {
        const auto black = vips::VImage::black(
            size.width, size.height, vips::VImage::option()->set("bands", bands)
        );
        return node.withPixels(
            black.copy(vips::VImage::option()->set("interpretation", VIPS_INTERPRETATION_sRGB))
        );
    });
}

} // namespace

Image pictureOf(const DashedRectangle& rectangle, PixelSize size)
{
    const QRectF& sides = rectangle.sides;
    const QPointF up(0, -1);
    const QPointF right(1, 0);
    Image picture = transparentPicture(size);
    for (const Side& side :
         {Side{sides.bottomLeft(), up, sides.height()},
          Side{sides.bottomLeft(), right, sides.width()},
          Side{sides.bottomRight(), up, sides.height()},
          Side{sides.topLeft(), right, sides.width()}}) {
        const QRect area = touched(side, rectangle.lineWidth, size);
        if (!area.isEmpty())
            picture = stamped(
                picture, {.layer = drawn(rectangle, side, area), .topLeft = area.topLeft()}
            );
    }
    return picture;
}

} // namespace brenvaldo::platform::drawing
