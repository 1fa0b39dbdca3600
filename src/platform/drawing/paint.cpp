// SPDX-License-Identifier: GPL-3.0-or-later
#include "paint.h"

#include "blend_rows.h"
#include "paint_rows.h"
#include "paint_table.h"
#include "shape_rows.h"

#include <platform/graphics/screen_scaling.h>

namespace brenvaldo::platform::drawing {

using graphics::Image;
using graphics::ImageNode;
using graphics::KernelRow;

namespace {

/// `photo` with rows that `change` is called for, with their place and their pixels.
template <class Sample, class Change>
ImageNode changedRows(const ImageNode& photo, Change change)
{
    const int bands = photo.pixels.bands();
    return photo.withPixels(graphics::mapRows(
        std::array{photo.pixels},
        {.bands = bands,
         .format = photo.pixels.format(),
         .interpretation = photo.pixels.interpretation()},
        [change, bands](const KernelRow<1>& row) {
            auto* out = row.template out<Sample>();
            std::copy_n(row.template input<Sample>(0), qsizetype{row.count} * bands, out);
            change(BlockPlace{.x = row.x, .y = row.y, .count = row.count}, out);
        }
    ));
}

template <class Sample>
ImageNode paintedByTable(const ImageNode& photo, const QRect& area, const PaintTable<Sample>& table)
{
    const int bands = photo.pixels.bands();
    return changedRows<Sample>(photo, [table, area, bands](const BlockPlace& place, Sample* out) {
        const QRect part = area.intersected({place.x, place.y, place.count, 1});
        if (!part.isEmpty())
            table.apply(out + qsizetype{part.x() - place.x} * bands, part.width());
    });
}

template <class Sample>
ImageNode paintedNode(const ImageNode& photo, const QRect& area, const PaintedArea& painting)
{
    const PaintRows paint(photo, painting.paint, painting.opacity);
    const bool isPlain = std::holds_alternative<graphics::Color>(painting.paint);
    if (isPlain && !photo.hasAlpha && isSeparable(painting.mode))
        return paintedByTable(photo, area, PaintTable<Sample>(photo, paint, painting.mode));
    return blendedNode<Sample>(
        photo,
        std::array{photo.pixels},
        area,
        painting.mode,
        [paint](const KernelRow<1>& row, int x, int count, BlendBlock& block) {
            paint.fill({.x = x, .y = row.y, .count = count}, block);
        }
    );
}

template <class Sample>
ImageNode paintedNode(const ImageNode& photo, const PaintedShape& painting)
{
    const ShapeRows<Sample> shape(photo, painting);
    return changedRows<Sample>(photo, [shape](const BlockPlace& place, Sample* out) {
        shape.paint(place, out);
    });
}

/// The painting as one that can stand between pixels.
PaintedShape shapeOf(const PaintedArea& painting)
{
    const auto& [x, y, width, height] = painting.area;
    PaintedShape shape = {
        .shape = {}, .paint = painting.paint, .mode = painting.mode, .opacity = painting.opacity};
    shape.shape.addRect(x, y, width, height);
    return shape;
}

/// A picture that was made by painting on `photo`.
Image paintedSmallerToo(const Image& result, const Image& photo, const PaintedShape& painting)
{
    return graphics::drawnSmallerBy(result, [photo, painting](graphics::PixelSize size) {
        const graphics::Shrinking shrinking = {photo.pixelSize(), size};
        const auto transform = QTransform::fromScale(shrinking.across(), shrinking.along());
        return painted(graphics::scaledForScreen(photo, size), shrunk(painting, transform));
    });
}

} // namespace

Image painted(const Image& photo, const PaintedArea& painting)
{
    const auto& [x, y, width, height] = painting.area;
    const QRect area
        = QRect(0, 0, photo.width(), photo.height()).intersected(QRect(x, y, width, height));
    if (area.isEmpty())
        return photo;
    const ImageNode& node = *photo.node();
    const Image result = graphics::builtImage(node, photo.pixelSize(), [&] {
        return node.pixels.format() == VIPS_FORMAT_USHORT
            ? paintedNode<quint16>(node, area, painting)
            : paintedNode<quint8>(node, area, painting);
    });
    return paintedSmallerToo(result, photo, shapeOf(painting));
}

PaintedShape shrunk(const PaintedShape& painting, const QTransform& shrinking)
{
    PaintedShape smaller = painting;
    smaller.shape = shrinking.map(painting.shape);
    if (auto* linear = std::get_if<LinearGradient>(&smaller.paint)) {
        linear->start = shrinking.map(linear->start);
        linear->end = shrinking.map(linear->end);
    } else if (auto* radial = std::get_if<RadialGradient>(&smaller.paint)) {
        radial->centre = shrinking.map(radial->centre);
        radial->startRadius *= shrinking.m11();
        radial->endRadius *= shrinking.m11();
    }
    return smaller;
}

Image painted(const Image& photo, const PaintedShape& painting)
{
    const ImageNode& node = *photo.node();
    const Image result = graphics::builtImage(node, photo.pixelSize(), [&] {
        return node.pixels.format() == VIPS_FORMAT_USHORT ? paintedNode<quint16>(node, painting)
                                                          : paintedNode<quint8>(node, painting);
    });
    return paintedSmallerToo(result, photo, painting);
}

} // namespace brenvaldo::platform::drawing
