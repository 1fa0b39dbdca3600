// SPDX-License-Identifier: GPL-3.0-or-later
#include "stamp.h"

#include "deferred_pixels.h"
#include "image_node.h"
#include "region_kernel.h"
#include "stamp_layer.h"

#include <platform/foundation/log.h>

#include <algorithm>
#include <mutex>

namespace brenvaldo::platform {

namespace {

int floorModulo(int value, int size) { return ((value % size) + size) % size; }

/// Lays a stamp over the rows of a photo.
template <class Sample>
class StampRows
{
public:
    StampRows(const Stamp& stamp, const ImageNode& photo)
        : m_layer(std::make_shared<const StampLayer<Sample>>(stamp.layer, photo))
        , m_topLeft(stamp.topLeft)
        , m_repeat(stamp.repeat)
        , m_bands(photo.pixels.bands())
    {
    }

    void operator()(const KernelRow<1>& row) const
    {
        auto* photo = row.template out<Sample>();
        std::copy_n(row.template input<Sample>(0), qsizetype{row.count} * m_bands, photo);
        const int layerY = row.y - m_topLeft.y();
        if (m_repeat == Stamp::Repeat::Tiled)
            layTiles(photo, floorModulo(layerY, m_layer->height()), row.x, row.count);
        else if (layerY >= 0 && layerY < m_layer->height())
            layOnce(photo, layerY, row.x, row.count);
    }

private:
    void layOnce(Sample* photo, int layerY, int x, int count) const
    {
        const int begin = std::max(x, m_topLeft.x());
        const int end = std::min(x + count, m_topLeft.x() + m_layer->width());
        if (begin < end)
            layRun(photo, begin - x, begin - m_topLeft.x(), layerY, end - begin);
    }

    void layTiles(Sample* photo, int layerY, int x, int count) const
    {
        int column = floorModulo(x - m_topLeft.x(), m_layer->width());
        for (int done = 0; done < count;) {
            const int run = std::min(count - done, m_layer->width() - column);
            layRun(photo, done, column, layerY, run);
            done += run;
            column = 0;
        }
    }

    void layRun(Sample* photo, int photoX, int layerX, int layerY, int count) const
    {
        m_layer->layOver(photo + qsizetype{photoX} * m_bands, layerX, layerY, count);
    }

    std::shared_ptr<const StampLayer<Sample>> m_layer;
    QPoint m_topLeft;
    Stamp::Repeat m_repeat;
    int m_bands;
};

template <class Sample>
vips::VImage mapped(const ImageNode& photo, const Stamp& stamp)
{
    const KernelOutput output = {
        .bands = photo.pixels.bands(),
        .format = photo.pixels.format(),
        .interpretation = photo.pixels.interpretation(),
    };
    return mapRows(std::array{photo.pixels}, output, StampRows<Sample>(stamp, photo));
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
    const bool isDeep = photo.pixels.format() == VIPS_FORMAT_USHORT;
    return {
        .pixels = isDeep ? mapped<quint16>(photo, stamp) : mapped<quint8>(photo, stamp),
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

bool isStamped(const Image& marked, const Image& photo)
{
    return marked.node()->stampedOn == photo.node();
}

std::optional<PixelRect> stampedPart(const Image& marked, const Image& photo)
{
    if (!isStamped(marked, photo))
        return std::nullopt;
    try {
        return marked.node()->stampedPart();
    } catch (const std::exception& error) {
        log(QStringLiteral("Failed to mark a photo: ") + QString::fromUtf8(error.what()));
        return std::nullopt;
    }
}

} // namespace brenvaldo::platform
