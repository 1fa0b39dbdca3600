// SPDX-License-Identifier: GPL-3.0-or-later
#include "clipped.h"

#include "ground_rows.h"
#include "photo_color.h"
#include "shape_rows.h"

#include <platform/graphics/color_profile.h>
#include <platform/graphics/image_node.h>
#include <platform/graphics/region_kernel.h>
#include <platform/graphics/sample_conversion.h>
#include <platform/graphics/screen_scaling.h>

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

    /// `in` and `out` are the pixels at `place`; what shows nothing becomes transparent.
    void show(const BlockPlace& place, const quint8* in, quint8* out) const
    {
        int done = 0;
        const auto clearUntil = [&done, out](int end) {
            std::fill_n(
                out + qsizetype{done} * outBands, qsizetype{end - done} * outBands, quint8{0}
            );
        };
        for (const ShapeMask::Run& run : runsAt(place.y)) {
            const int begin = std::max({run.begin, place.x, m_picture.left()}) - place.x;
            const int end = std::min(run.end - place.x, endOfPicture(place));
            if (begin >= end)
                continue;
            clearUntil(begin);
            showRun(
                in + qsizetype{begin} * m_bands,
                end - begin,
                run.coverage,
                out + qsizetype{begin} * outBands
            );
            done = end;
        }
        clearUntil(place.count);
    }

private:
    [[nodiscard]] std::span<const ShapeMask::Run> runsAt(int y) const
    {
        const bool isBeside = y < m_picture.top() || y > m_picture.bottom();
        return isBeside ? std::span<const ShapeMask::Run>() : m_mask.row(y);
    }

    /// Behind the last of the pixels at `place` that the picture has.
    [[nodiscard]] int endOfPicture(const BlockPlace& place) const
    {
        return std::min(place.x + place.count, m_picture.right() + 1) - place.x;
    }

    void showRun(const quint8* in, int count, unsigned coverage, quint8* out) const
    {
        const auto alpha = static_cast<quint8>(coverage);
        if (m_isGray)
            showGray(in, count, alpha, out);
        else
            showColors(in, count, alpha, out);
        if (m_hasAlpha)
            showAlpha(in + m_bands - 1, count, coverage, out + 3);
    }

    void showGray(const quint8* in, int count, quint8 alpha, quint8* out) const
    {
        const int bands = m_bands; // pixels could be anything, this for one
        for (int i = 0; i < count; ++i, out += outBands, in += bands) {
            out[0] = out[1] = out[2] = in[0];
            out[3] = alpha;
        }
    }

    void showColors(const quint8* in, int count, quint8 alpha, quint8* out) const
    {
        const int bands = m_bands;
        for (int i = 0; i < count; ++i, out += outBands, in += bands) {
            out[0] = in[0];
            out[1] = in[1];
            out[2] = in[2];
            out[3] = alpha;
        }
    }

    void showAlpha(const quint8* in, int count, unsigned coverage, quint8* out) const
    {
        constexpr unsigned full = 255;
        for (int i = 0; i < count; ++i, out += outBands, in += m_bands)
            *out = static_cast<quint8>((*in * coverage + full / 2) / full);
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

void fillOutside(const Layers& layers, quint8* pixels, int count)
{
    for (int i = 0; i < count; ++i)
        pixels = std::copy_n(layers.outside.begin(), outBands, pixels);
}

/// Makes the rows of the result in one go, while they are at hand.
void composeRow(const Layers& layers, const graphics::KernelRow<1>& row, int bands)
{
    auto* out = row.out<quint8>();
    const QRect part = layers.canvas.intersected({row.x, row.y, row.count, 1});
    const int first = part.isEmpty() ? row.count : part.x() - row.x;
    const int behind = part.isEmpty() ? row.count : first + part.width();
    fillOutside(layers, out, first);
    fillOutside(layers, out + qsizetype{behind} * outBands, row.count - behind);
    if (part.isEmpty())
        return;
    quint8* pixels = out + qsizetype{first} * outBands;
    const QPoint onCanvas = part.topLeft() - layers.canvas.topLeft();
    const BlockPlace place = {.x = onCanvas.x(), .y = onCanvas.y(), .count = part.width()};
    layers.picture.show(place, row.input<quint8>(0) + qsizetype{first} * bands, pixels);
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

/// The margin is the same on all sides, also where it is rounded.
int shrunkMargin(const Clip& clip, graphics::PixelSize size)
{
    const graphics::Shrinking shrinking = {sizeOf(clip), size};
    return clip.ground ? qRound(clip.ground->margin * shrinking.across()) : 0;
}

graphics::Image
clippedSmaller(const graphics::Image& picture, Clip clip, QPoint place, graphics::PixelSize size)
{
    const int margin = shrunkMargin(clip, size);
    const graphics::PixelSize canvas
        = {std::max(1, size.width - 2 * margin), std::max(1, size.height - 2 * margin)};
    const graphics::Shrinking shrinking = {clip.canvas, canvas};
    const graphics::PixelRect part = shrinking.of(
        {.x = place.x(), .y = place.y(), .width = picture.width(), .height = picture.height()}
    );
    const auto transform = QTransform::fromScale(shrinking.across(), shrinking.along());
    clip.canvas = canvas;
    clip.shape = transform.map(clip.shape);
    if (clip.border)
        clip.border = shrunk(*clip.border, transform);
    if (clip.ground)
        clip.ground->margin = margin;
    return clipped(
        graphics::scaledForScreen(picture, {part.width, part.height}), clip, {part.x, part.y}
    );
}

} // namespace

graphics::Image clipped(const graphics::Image& picture, const Clip& clip, QPoint place)
{
    const ImageNode& node = *picture.node();
    return graphics::drawnSmallerBy(
        graphics::builtImage(node, sizeOf(clip), [&] { return clippedNode(node, clip, place); }),
        [picture, clip, place](graphics::PixelSize size) {
            return clippedSmaller(picture, clip, place, size);
        }
    );
}

} // namespace brenvaldo::platform::drawing
