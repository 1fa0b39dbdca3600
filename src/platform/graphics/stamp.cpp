// SPDX-License-Identifier: GPL-3.0-or-later
#include "stamp.h"

#include "color_profile.h"
#include "deferred_pixels.h"
#include "image_node.h"
#include "region_kernel.h"

#include <platform/foundation/log.h>

#include <algorithm>
#include <cstring>
#include <limits>
#include <mutex>

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

PixelRect coveredPart(const ImageNode& photo, const Stamp& stamp)
{
    if (stamp.layer.isNull())
        return {};
    const QRect all(0, 0, photo.pixels.width(), photo.pixels.height());
    const QRect covered = stamp.repeat == Stamp::Repeat::Tiled
        ? all
        : all.intersected(QRect(stamp.topLeft, stamp.layer.size()));
    return {
        .x = covered.x(), .y = covered.y(), .width = covered.width(), .height = covered.height()};
}

/// A photo with a stamp on it.
struct StampedPhoto
{
    vips::VImage pixels;
    PixelRect part; ///< that differs from the photo
};

StampedPhoto laidOver(const ImageNode& photo, const Stamp& stamp)
{
    if (stamp.layer.isNull())
        return {.pixels = photo.pixels, .part = {}};
    const vips::VImage layer = layerInColorsOf(stamp.layer, photo);
    return {
        .pixels = photo.pixels.format() == VIPS_FORMAT_USHORT ? mapped<quint16>(photo, layer, stamp)
                                                              : mapped<quint8>(photo, layer, stamp),
        .part = coveredPart(photo, stamp)};
}

/// A photo that gets its stamp when it is first needed.
class PhotoToStamp
{
public:
    PhotoToStamp(std::shared_ptr<const ImageNode> photo, std::function<Stamp()> makeStamp)
        : m_photo(std::move(photo))
        , m_makeStamp(std::move(makeStamp))
    {
    }

    const StampedPhoto& stamped()
    {
        std::call_once(m_once, [this] {
            m_stamped = laidOver(*m_photo, m_makeStamp());
            m_makeStamp = nullptr;
        });
        return m_stamped;
    }

private:
    std::shared_ptr<const ImageNode> m_photo;
    std::function<Stamp()> m_makeStamp;
    std::once_flag m_once;
    StampedPhoto m_stamped;
};

Image markedImage(
    const Image& photo, const vips::VImage& pixels, std::function<PixelRect()> stampedPart
)
{
    ImageNode marked = photo.node()->withPixels(pixels);
    marked.stampedOn = photo.node();
    marked.stampedPart = std::move(stampedPart);
    return makeImage(std::move(marked));
}

} // namespace

Image stamped(const Image& photo, const Stamp& stamp)
{
    if (stamp.layer.isNull())
        return photo;
    const StampedPhoto marked = laidOver(*photo.node(), stamp);
    return markedImage(photo, marked.pixels, [part = marked.part] { return part; });
}

Image stamped(const Image& photo, std::function<Stamp()> makeStamp)
{
    Q_ASSERT(!isSequential(photo.node()->pixels));
    const auto marked = std::make_shared<PhotoToStamp>(photo.node(), std::move(makeStamp));
    const auto pixels = deferredPixels(layoutOf(photo.node()->pixels), [marked] {
        return marked->stamped().pixels;
    });
    return markedImage(photo, pixels, [marked] { return marked->stamped().part; });
}

std::optional<PixelRect> stampedPart(const Image& marked, const Image& photo)
{
    const ImageNode& node = *marked.node();
    if (node.stampedOn != photo.node())
        return std::nullopt;
    try {
        return node.stampedPart();
    } catch (const std::exception& error) {
        log(QStringLiteral("Failed to mark a photo: ") + QString::fromUtf8(error.what()));
        return std::nullopt;
    }
}

} // namespace brenvaldo::platform
