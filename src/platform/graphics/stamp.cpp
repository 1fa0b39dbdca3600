// SPDX-License-Identifier: GPL-3.0-or-later
#include "stamp.h"

#include "color_profile.h"
#include "image_node.h"
#include "region_kernel.h"

#include <algorithm>
#include <cstring>
#include <limits>

namespace brenvaldo::platform {

namespace {

int floorModulo(int value, int size) { return ((value % size) + size) % size; }

/// (a * weight + b * (full - weight)) / full, rounded; exact in 32 bits for 8 and 16-bit samples.
template <class Sample>
Sample mixed(Sample a, Sample b, Sample weight)
{
    constexpr std::uint32_t full = std::numeric_limits<Sample>::max();
    const std::uint32_t sum = std::uint32_t{a} * weight + std::uint32_t{b} * (full - weight);
    return static_cast<Sample>((sum + full / 2) / full);
}

/// Lays one layer pixel over one opaque photo pixel.
template <class Sample>
void layOverOpaque(Sample* photo, const Sample* layer, int colors)
{
    const Sample alpha = layer[colors];
    for (int band = 0; band < colors; ++band)
        photo[band] = mixed(layer[band], photo[band], alpha);
}

/// Lays one layer pixel over one photo pixel with straight alpha.
template <class Sample>
void layOverTranslucent(Sample* photo, const Sample* layer, int colors)
{
    constexpr double full = std::numeric_limits<Sample>::max();
    const double above = layer[colors] / full;
    const double below = photo[colors] / full * (1 - above);
    const double alpha = above + below;
    if (alpha <= 0)
        return;
    for (int band = 0; band < colors; ++band)
        photo[band]
            = static_cast<Sample>((layer[band] * above + photo[band] * below) / alpha + 0.5);
    photo[colors] = static_cast<Sample>(alpha * full + 0.5);
}

/// The rows of a stamp, in the colours and depth of the photo.
template <class Sample>
class StampRows
{
public:
    StampRows(vips::VImage layer, const Stamp& stamp, const ImageNode& photo)
        : m_layer(std::move(layer))
        , m_width(m_layer.width())
        , m_height(m_layer.height())
        , m_topLeft(stamp.topLeft)
        , m_repeat(stamp.repeat)
        , m_colors(colorBands(photo.colorModel))
        , m_photoHasAlpha(photo.hasAlpha)
        , m_samples(static_cast<const Sample*>(m_layer.data()))
    {
    }

    void operator()(const KernelRow<1>& row) const
    {
        const int photoBands = m_colors + (m_photoHasAlpha ? 1 : 0);
        auto* photo = row.template out<Sample>();
        std::memcpy(
            photo,
            row.inputs[0],
            static_cast<std::size_t>(row.count) * static_cast<std::size_t>(photoBands)
                * sizeof(Sample)
        );
        int layerY = row.y - m_topLeft.y();
        if (m_repeat == Stamp::Repeat::Tiled)
            layerY = floorModulo(layerY, m_height);
        if (layerY < 0 || layerY >= m_height)
            return;
        const Sample* layer = m_samples + std::size_t(layerY) * std::size_t(m_width) * layerBands();
        if (m_repeat == Stamp::Repeat::Tiled)
            layTiles(photo, layer, row.x, row.count);
        else
            layOnce(photo, layer, row.x, row.count);
    }

private:
    [[nodiscard]] std::size_t layerBands() const { return static_cast<std::size_t>(m_colors) + 1; }

    void layOnce(Sample* photo, const Sample* layer, int x, int count) const
    {
        const int begin = std::max(x, m_topLeft.x());
        const int end = std::min(x + count, m_topLeft.x() + m_width);
        if (begin < end)
            layRun(photo, begin - x, layer, begin - m_topLeft.x(), end - begin);
    }

    void layTiles(Sample* photo, const Sample* layer, int x, int count) const
    {
        int column = floorModulo(x - m_topLeft.x(), m_width);
        for (int done = 0; done < count;) {
            const int run = std::min(count - done, m_width - column);
            layRun(photo, done, layer, column, run);
            done += run;
            column = 0;
        }
    }

    void layRun(Sample* photo, int photoX, const Sample* layer, int layerX, int count) const
    {
        const int photoBands = m_colors + (m_photoHasAlpha ? 1 : 0);
        photo += static_cast<std::ptrdiff_t>(photoX) * photoBands;
        layer += static_cast<std::ptrdiff_t>(layerX) * (m_colors + 1);
        for (int i = 0; i < count; ++i, photo += photoBands, layer += m_colors + 1) {
            if (layer[m_colors] == 0)
                continue;
            if (m_photoHasAlpha)
                layOverTranslucent(photo, layer, m_colors);
            else
                layOverOpaque(photo, layer, m_colors);
        }
    }

    vips::VImage m_layer;
    int m_width;
    int m_height;
    QPoint m_topLeft;
    Stamp::Repeat m_repeat;
    int m_colors;
    bool m_photoHasAlpha;
    const Sample* m_samples;
};

vips::VImage layerInColorsOf(const QImage& layer, const ImageNode& photo)
{
    const Image straight = Image::fromQImage(layer.convertToFormat(QImage::Format_RGBA8888));
    return srgbLayerInColorsOf(straight.node()->pixels, photo).copy_memory();
}

template <class Sample>
vips::VImage mapped(const ImageNode& photo, const vips::VImage& layer, const Stamp& stamp)
{
    const KernelOutput output = {
        .bands = photo.pixels.bands(),
        .format = photo.pixels.format(),
        .interpretation = photo.pixels.interpretation(),
    };
    return mapRows(std::array{photo.pixels}, output, StampRows<Sample>(layer, stamp, photo));
}

PixelRect coveredPart(const Image& photo, const Stamp& stamp)
{
    const QRect all(0, 0, photo.width(), photo.height());
    const QRect covered = stamp.repeat == Stamp::Repeat::Tiled
        ? all
        : all.intersected(QRect(stamp.topLeft, stamp.layer.size()));
    return {
        .x = covered.x(), .y = covered.y(), .width = covered.width(), .height = covered.height()};
}

} // namespace

Image stamped(const Image& photo, const Stamp& stamp)
{
    if (stamp.layer.isNull())
        return photo;
    const ImageNode& node = *photo.node();
    const vips::VImage layer = layerInColorsOf(stamp.layer, node);
    ImageNode marked = node.withPixels(
        node.pixels.format() == VIPS_FORMAT_USHORT ? mapped<quint16>(node, layer, stamp)
                                                   : mapped<quint8>(node, layer, stamp)
    );
    marked.stampedOn = photo.node();
    marked.stampedPart = coveredPart(photo, stamp);
    return makeImage(std::move(marked));
}

std::optional<PixelRect> stampedPart(const Image& marked, const Image& photo)
{
    const ImageNode& node = *marked.node();
    return node.stampedOn == photo.node() ? std::optional(node.stampedPart) : std::nullopt;
}

} // namespace brenvaldo::platform
