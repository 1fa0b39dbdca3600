// SPDX-License-Identifier: GPL-3.0-or-later
#include "paint.h"

#include "blend_rows.h"
#include "paint_rows.h"
#include "shape_rows.h"

namespace brenvaldo::platform::drawing {

using graphics::Image;
using graphics::ImageNode;
using graphics::KernelRow;

namespace {

template <class Sample>
ImageNode paintedNode(const ImageNode& photo, const QRect& area, const PaintedArea& painting)
{
    const PaintRows paint(photo, painting.paint, painting.opacity);
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
    const int bands = photo.pixels.bands();
    return photo.withPixels(graphics::mapRows(
        std::array{photo.pixels},
        {.bands = bands,
         .format = photo.pixels.format(),
         .interpretation = photo.pixels.interpretation()},
        [shape, bands](const KernelRow<1>& row) {
            auto* out = row.template out<Sample>();
            std::copy_n(row.template input<Sample>(0), qsizetype{row.count} * bands, out);
            shape.paint({.x = row.x, .y = row.y, .count = row.count}, out);
        }
    ));
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
    return graphics::builtImage(node, photo.pixelSize(), [&] {
        return node.pixels.format() == VIPS_FORMAT_USHORT
            ? paintedNode<quint16>(node, area, painting)
            : paintedNode<quint8>(node, area, painting);
    });
}

Image painted(const Image& photo, const PaintedShape& painting)
{
    const ImageNode& node = *photo.node();
    return graphics::builtImage(node, photo.pixelSize(), [&] {
        return node.pixels.format() == VIPS_FORMAT_USHORT ? paintedNode<quint16>(node, painting)
                                                          : paintedNode<quint8>(node, painting);
    });
}

} // namespace brenvaldo::platform::drawing
