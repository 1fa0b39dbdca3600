// SPDX-License-Identifier: GPL-3.0-or-later
#include "clipped.h"

#include "shape_mask.h"

#include <platform/graphics/color_profile.h>
#include <platform/graphics/image_node.h>
#include <platform/graphics/region_kernel.h>
#include <platform/graphics/sample_conversion.h>

#include <algorithm>

namespace brenvaldo::platform::drawing {

using graphics::ImageNode;

namespace {

constexpr int outBands = 4;

/// Cuts the rows of a canvas that a picture stands on. The picture is grey or RGB, with or without
/// an alpha.
class ClipRows
{
public:
    ClipRows(const Clip& clip, const QRect& picture, const ImageNode& node)
        : m_mask(clip.shape, clip.canvas)
        , m_picture(picture)
        , m_bands(node.pixels.bands())
        , m_isGray(node.colorModel == graphics::ColorModel::Gray)
        , m_hasAlpha(node.hasAlpha)
    {
    }

    void operator()(const graphics::KernelRow<1>& row) const
    {
        const auto* in = row.input<quint8>(0);
        auto* out = row.out<quint8>();
        std::fill_n(out, qsizetype{row.count} * outBands, quint8{0});
        if (row.y < m_picture.top() || row.y > m_picture.bottom())
            return;
        for (const ShapeMask::Run& run : m_mask.row(row.y)) {
            const int begin = std::max({run.begin, row.x, m_picture.left()});
            const int end = std::min({run.end, row.x + row.count, m_picture.right() + 1});
            const qsizetype first = begin - row.x;
            if (begin < end)
                show(out + first * outBands, in + first * m_bands, end - begin, run.coverage);
        }
    }

private:
    void show(quint8* out, const quint8* in, int count, unsigned coverage) const
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

ImageNode clippedNode(const ImageNode& picture, const Clip& clip, QPoint place)
{
    const ImageNode bytes = graphics::withBytes(graphics::convertedToSrgb(picture));
    const vips::VImage canvas
        = bytes.pixels.embed(place.x(), place.y(), clip.canvas.width, clip.canvas.height);
    const QRect area(place, QSize(bytes.pixels.width(), bytes.pixels.height()));
    ImageNode clipped = picture.withPixels(graphics::mapRows(
        std::array{canvas},
        {outBands, VIPS_FORMAT_UCHAR, VIPS_INTERPRETATION_sRGB},
        ClipRows(clip, area, bytes)
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
    return graphics::builtImage(node, clip.canvas, [&] { return clippedNode(node, clip, place); });
}

} // namespace brenvaldo::platform::drawing
