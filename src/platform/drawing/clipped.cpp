// SPDX-License-Identifier: GPL-3.0-or-later
#include "clipped.h"

#include "ground_rows.h"
#include "photo_color.h"
#include "shape_rows.h"

#include <platform/graphics/color_profile.h>
#include <platform/graphics/image_node.h>
#include <platform/graphics/region_kernel.h>
#include <platform/graphics/sample_conversion.h>

#include <algorithm>

namespace brenvaldo::platform::drawing {

using graphics::ImageNode;

namespace {

constexpr int outBands = 4;

/// Shows a picture, which is grey or RGB, with or without an alpha, in the runs of a shape.
class ShownRows
{
public:
    ShownRows(const Clip& clip, const QRect& picture, const ImageNode& node)
        : m_mask(clip.shape, clip.canvas)
        , m_picture(picture)
        , m_bands(node.pixels.bands())
        , m_isGray(node.colorModel == graphics::ColorModel::Gray)
        , m_hasAlpha(node.hasAlpha)
    {
    }

    /// `in` and `out` are the pixels at `place`; the latter are transparent.
    void show(const BlockPlace& place, const quint8* in, quint8* out) const
    {
        if (place.y < m_picture.top() || place.y > m_picture.bottom())
            return;
        for (const ShapeMask::Run& run : m_mask.row(place.y)) {
            const int begin = std::max({run.begin, place.x, m_picture.left()});
            const int end = std::min({run.end, place.x + place.count, m_picture.right() + 1});
            const qsizetype first = begin - place.x;
            if (begin < end)
                showRun(in + first * m_bands, end - begin, run.coverage, out + first * outBands);
        }
    }

private:
    void showRun(const quint8* in, int count, unsigned coverage, quint8* out) const
    {
        constexpr unsigned full = 255;
        const int green = m_isGray ? 0 : 1;
        const int blue = m_isGray ? 0 : 2;
        for (int i = 0; i < count; ++i, out += outBands, in += m_bands) {
            out[0] = in[0];
            out[1] = in[green];
            out[2] = in[blue];
            out[3] = m_hasAlpha
                ? static_cast<quint8>((in[m_bands - 1] * coverage + full / 2) / full)
                : static_cast<quint8>(coverage);
        }
    }

    ShapeMask m_mask;
    QRect m_picture; ///< its place on the canvas
    int m_bands;
    bool m_isGray;
    bool m_hasAlpha;
};

/// What the rows of the result are made of.
struct Layers
{
    ShownRows picture;
    std::optional<ShapeRows<quint8>> border;
    std::optional<GroundRows<quint8>> ground;
    std::array<quint8, outBands> outside; ///< a pixel that the canvas leaves free
    QRect canvas; ///< its place on the ground
};

/// Makes the rows of the result in one go, while they are at hand.
void composeRow(const Layers& layers, const graphics::KernelRow<1>& row, int bands)
{
    auto* out = row.out<quint8>();
    for (int i = 0; i < row.count; ++i)
        std::copy_n(layers.outside.begin(), outBands, out + qsizetype{i} * outBands);
    const QRect part = layers.canvas.intersected({row.x, row.y, row.count, 1});
    if (part.isEmpty())
        return;
    const qsizetype first = part.x() - row.x;
    quint8* pixels = out + first * outBands;
    const QPoint onCanvas = part.topLeft() - layers.canvas.topLeft();
    const BlockPlace place = {.x = onCanvas.x(), .y = onCanvas.y(), .count = part.width()};
    std::fill_n(pixels, qsizetype{place.count} * outBands, quint8{0});
    layers.picture.show(place, row.input<quint8>(0) + first * bands, pixels);
    if (layers.border)
        layers.border->paint(place, pixels);
    if (layers.ground)
        layers.ground->fillUp(pixels, place.count);
}

/// A transparent canvas, which has only its size and its kind of pixels.
ImageNode canvasNode(const Clip& clip)
{
    ImageNode node;
    node.hasAlpha = true;
    node.pixels
        = vips::VImage::black(
              clip.canvas.width, clip.canvas.height, vips::VImage::option()->set("bands", outBands)
        )
              .copy(vips::VImage::option()->set("interpretation", VIPS_INTERPRETATION_sRGB));
    return node;
}

Layers layersOf(const ImageNode& picture, const Clip& clip, QPoint place)
{
    const ImageNode canvas = canvasNode(clip);
    const QRect area(place, QSize(picture.pixels.width(), picture.pixels.height()));
    Layers layers{
        .picture = {clip, area, picture},
        .border = std::nullopt,
        .ground = std::nullopt,
        .outside = {},
        .canvas = {0, 0, clip.canvas.width, clip.canvas.height}};
    if (clip.border)
        layers.border.emplace(canvas, *clip.border);
    if (clip.ground) {
        const std::vector<double> color = samplesOf(clip.ground->color, canvas);
        layers.ground.emplace(color);
        layers.ground->fillUp(layers.outside.data(), 1);
        layers.canvas.translate(clip.ground->margin, clip.ground->margin);
    }
    return layers;
}

graphics::PixelSize sizeOf(const Clip& clip)
{
    const int growth = clip.ground ? 2 * clip.ground->margin : 0;
    return {clip.canvas.width + growth, clip.canvas.height + growth};
}

ImageNode clippedNode(const ImageNode& picture, const Clip& clip, QPoint place)
{
    const ImageNode bytes = graphics::withBytes(graphics::convertedToSrgb(picture));
    const graphics::PixelSize size = sizeOf(clip);
    const Layers layers = layersOf(bytes, clip, place);
    const QPoint placeOnGround = layers.canvas.topLeft() + place;
    const vips::VImage input
        = bytes.pixels.embed(placeOnGround.x(), placeOnGround.y(), size.width, size.height);
    const int bands = bytes.pixels.bands();
    ImageNode clipped = picture.withPixels(graphics::mapRows(
        std::array{input},
        {outBands, VIPS_FORMAT_UCHAR, VIPS_INTERPRETATION_sRGB},
        [layers, bands](const graphics::KernelRow<1>& row) { composeRow(layers, row, bands); }
    ));
    clipped.colorModel = graphics::ColorModel::Rgb;
    clipped.hasAlpha = true;
    clipped.iccProfile.clear();
    return clipped;
}

} // namespace

graphics::Image clipped(const graphics::Image& picture, const Clip& clip, QPoint place)
{
    const ImageNode& node = *picture.node();
    return graphics::builtImage(node, sizeOf(clip), [&] { return clippedNode(node, clip, place); });
}

} // namespace brenvaldo::platform::drawing
