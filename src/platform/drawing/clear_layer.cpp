// SPDX-License-Identifier: GPL-3.0-or-later
#include "clear_layer.h"

#include "floor_modulo.h"

#include <platform/graphics/evaluation.h>
#include <platform/graphics/image_node.h>
#include <platform/graphics/region_kernel.h>
#include <platform/graphics/sample_conversion.h>

#include <QRect>

#include <cmath>

namespace brenvaldo::platform::drawing {

using graphics::Image;
using graphics::ImageNode;
using graphics::PixelSize;

namespace {

constexpr int bands = 4;

ImageNode layerNode(const vips::VImage& pixels, double dotsPerInch)
{
    return {
        .pixels = pixels,
        .colorModel = graphics::ColorModel::Rgb,
        .hasAlpha = true,
        .dotsPerInch = dotsPerInch};
}

vips::VImage inkedPixels(const vips::VImage& pixels, const graphics::Color& color)
{
    const auto byte = [](double level) { return static_cast<quint8>(std::lround(level * 255)); };
    const std::array ink = {byte(color.red), byte(color.green), byte(color.blue)};
    return graphics::mapRows(
        std::array{pixels},
        {.bands = bands},
        [ink, share = color.alpha](const graphics::KernelRow<1>& row) {
            const auto* in = row.input<quint8>(0);
            auto* out = row.out<quint8>();
            for (int i = 0; i < row.count; ++i, in += bands, out += bands) {
                std::copy(ink.begin(), ink.end(), out);
                out[bands - 1] = static_cast<quint8>(in[bands - 1] * share + 0.5);
            }
        }
    );
}

vips::VImage clearPixels(PixelSize size)
{
    return vips::VImage::black(size.width, size.height, vips::VImage::option()->set("bands", bands))
        .copy(vips::VImage::option()->set("interpretation", VIPS_INTERPRETATION_sRGB));
}

/// How many steps cover a length.
int timesOf(int length, int step) { return (length + step - 1) / step; }

/// A cell of some size that repeats as `cell` does: many small pieces are slow to lay.
vips::VImage handyCell(const vips::VImage& cell)
{
    constexpr int handySide = 256;
    const int across = timesOf(handySide, cell.width());
    const int down = timesOf(handySide, cell.height());
    return across * down == 1 ? cell : graphics::copiedToMemory(cell.replicate(across, down));
}

} // namespace

Image clearLayer(const Image& picture)
{
    const ImageNode& node = *picture.node();
    return graphics::builtImage(node, picture.pixelSize(), [&] {
        const ImageNode rgb = graphics::withRgbBytes(node);
        return layerNode(rgb.hasAlpha ? rgb.pixels : rgb.pixels.bandjoin(255), node.dotsPerInch);
    });
}

Image onClearCanvas(const Image& layer, PixelSize canvas, QPoint place)
{
    const ImageNode& node = *layer.node();
    const QRect seen = QRect(place, QSize(layer.width(), layer.height()))
                           .intersected(QRect(0, 0, canvas.width, canvas.height));
    return graphics::builtImage(node, canvas, [&] {
        if (seen.isEmpty())
            return node.withPixels(clearPixels(canvas));
        const QPoint part = seen.topLeft() - place;
        return node.withPixels(node.pixels
                                   .extract_area(part.x(), part.y(), seen.width(), seen.height())
                                   .embed(seen.x(), seen.y(), canvas.width, canvas.height));
    });
}

Image repeated(const Image& cell, PixelSize canvas, QPoint corner)
{
    const ImageNode& node = *cell.node();
    return graphics::builtImage(node, canvas, [&] {
        const vips::VImage handy = handyCell(node.pixels);
        const int left = floorModulo(-corner.x(), handy.width());
        const int top = floorModulo(-corner.y(), handy.height());
        return node.withPixels(handy
                                   .replicate(
                                       timesOf(left + canvas.width, handy.width()),
                                       timesOf(top + canvas.height, handy.height())
                                   )
                                   .extract_area(left, top, canvas.width, canvas.height));
    });
}

Image inked(const Image& layer, const graphics::Color& color)
{
    const ImageNode& node = *layer.node();
    return graphics::builtImage(node, layer.pixelSize(), [&] {
        return node.withPixels(inkedPixels(node.pixels, color));
    });
}

std::optional<Image> shapeOf(const Image& photo)
{
    if (!photo.hasAlpha())
        return std::nullopt;
    const ImageNode& node = *photo.node();
    return graphics::builtImage(node, photo.pixelSize(), [&] {
        const vips::VImage bytes = graphics::withBytes(node).pixels;
        const vips::VImage black
            = bytes.extract_band(0).linear(0, 0, vips::VImage::option()->set("uchar", true));
        return layerNode(
            vips::VImage::bandjoin({black, black, black, bytes.extract_band(bytes.bands() - 1)})
                .copy(vips::VImage::option()->set("interpretation", VIPS_INTERPRETATION_sRGB)),
            node.dotsPerInch
        );
    });
}

} // namespace brenvaldo::platform::drawing
