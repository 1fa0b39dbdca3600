// SPDX-License-Identifier: GPL-3.0-or-later
#include "stamp.h"

#include "floor_modulo.h"
#include "stamp_layer.h"

#include <platform/foundation/literals.h>
#include <platform/foundation/log.h>
#include <platform/graphics/deferred_pixels.h>
#include <platform/graphics/image_node.h>
#include <platform/graphics/region_kernel.h>

#include <algorithm>
#include <mutex>
#include <vector>

namespace brenvaldo::platform::drawing {

using graphics::Image;
using graphics::ImageNode;
using graphics::PixelRect;

namespace {

/// A layer at its place on a photo.
template <class Sample>
struct LaidLayer
{
    std::shared_ptr<const StampLayer<Sample>> layer;
    QPoint topLeft;

    LaidLayer(
        const QImage& image,
        QPoint place,
        const ImageNode& photo,
        const std::optional<Stamp::Texture>& texture = {}
    )
        : layer(std::make_shared<const StampLayer<Sample>>(image, texture, photo))
        , topLeft(place)
    {
    }

    [[nodiscard]] bool meetsRow(int y) const
    {
        return y >= topLeft.y() && y < topLeft.y() + layer->height();
    }
    [[nodiscard]] int begin() const { return topLeft.x(); }
    [[nodiscard]] int end() const { return topLeft.x() + layer->width(); }
};

/// Lays a stamp over the rows of a photo.
template <class Sample>
class StampRows
{
public:
    StampRows(const Stamp& stamp, const ImageNode& photo)
        : m_mark(stamp.layer, stamp.topLeft, photo, stamp.texture)
        , m_repeat(stamp.repeat)
        , m_bands(photo.pixels.bands())
    {
        for (const Stamp::Patch& patch : stamp.patches) {
            if (!patch.layer.isNull())
                m_patches.emplace_back(patch.layer, patch.topLeft, photo);
        }
    }

    void operator()(const graphics::KernelRow<1>& row) const
    {
        auto* photo = row.template out<Sample>();
        std::copy_n(row.template input<Sample>(0), qsizetype{row.count} * m_bands, photo);
        if (m_repeat == Stamp::Repeat::Tiled)
            layTilesAndPatches({photo, row.x, row.x + row.count, row.y});
        else
            layOnce(m_mark, {photo, row.x, row.x + row.count, row.y});
    }

private:
    /// Pixels of one row of the photo, from `begin` to before `end`.
    struct Span
    {
        Sample* pixels;
        int begin;
        int end;
        int y;
    };

    Span part(const Span& span, int begin, int end) const
    {
        return {span.pixels + qsizetype{begin - span.begin} * m_bands, begin, end, span.y};
    }

    void layTilesAndPatches(const Span& span) const
    {
        for (int x = span.begin; x < span.end;) {
            int next = span.end; // where another patch begins
            const LaidLayer<Sample>* patch = nullptr;
            for (const LaidLayer<Sample>& candidate : m_patches) {
                if (!candidate.meetsRow(span.y))
                    continue;
                if (candidate.begin() > x)
                    next = std::min(next, candidate.begin());
                else if (candidate.end() > x)
                    patch = &candidate;
            }
            const int end = patch != nullptr ? std::min(span.end, patch->end()) : next;
            if (patch != nullptr)
                layOnce(*patch, part(span, x, end));
            else
                layTiles(part(span, x, end));
            x = end;
        }
    }

    void layOnce(const LaidLayer<Sample>& laid, const Span& span) const
    {
        const int begin = std::max(span.begin, laid.begin());
        const int end = std::min(span.end, laid.end());
        if (laid.meetsRow(span.y) && begin < end)
            laid.layer->layOver(
                part(span, begin, end).pixels,
                begin - laid.begin(),
                span.y - laid.topLeft.y(),
                end - begin
            );
    }

    void layTiles(const Span& span) const
    {
        const StampLayer<Sample>& layer = *m_mark.layer;
        const int row = floorModulo(span.y - m_mark.topLeft.y(), layer.height());
        int column = floorModulo(span.begin - m_mark.topLeft.x(), layer.width());
        for (int x = span.begin; x < span.end;) {
            const int count = std::min(span.end - x, layer.width() - column);
            layer.layOver(part(span, x, x + count).pixels, column, row, count);
            x += count;
            column = 0;
        }
    }

    LaidLayer<Sample> m_mark;
    std::vector<LaidLayer<Sample>> m_patches;
    Stamp::Repeat m_repeat;
    int m_bands;
};

template <class Sample>
vips::VImage mapped(const ImageNode& photo, const Stamp& stamp)
{
    const graphics::KernelOutput output = {
        .bands = photo.pixels.bands(),
        .format = photo.pixels.format(),
        .interpretation = photo.pixels.interpretation(),
    };
    return graphics::mapRows(std::array{photo.pixels}, output, StampRows<Sample>(stamp, photo));
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

ImageNode
markedNode(const Image& photo, const vips::VImage& pixels, std::function<PixelRect()> stampedPart)
{
    ImageNode marked = photo.node()->withPixels(pixels);
    marked.stampedOn = photo.node();
    marked.stampedPart = std::move(stampedPart);
    return marked;
}

} // namespace

Image stamped(const Image& photo, const Stamp& stamp)
{
    if (stamp.layer.isNull())
        return photo;
    return graphics::builtImage(*photo.node(), photo.pixelSize(), [&] {
        const StampedPhoto marked = laidOver(*photo.node(), stamp);
        return markedNode(photo, marked.pixels, [part = marked.part] { return part; });
    });
}

Image stamped(const Image& photo, std::function<Stamp()> makeStamp)
{
    Q_ASSERT(!graphics::isSequential(photo.node()->pixels));
    const auto marked = std::make_shared<PhotoToStamp>(photo.node(), std::move(makeStamp));
    return graphics::builtImage(*photo.node(), photo.pixelSize(), [&] {
        const auto pixels
            = graphics::deferredPixels(graphics::layoutOf(photo.node()->pixels), [marked] {
                  return marked->stamped().pixels;
              });
        return markedNode(photo, pixels, [marked] { return marked->stamped().part; });
    });
}

Image markedOn(const Image& photo, const Image& picture)
{
    const auto [width, height] = picture.pixelSize();
    const PixelRect all = {.width = width, .height = height};
    ImageNode marked = *picture.node();
    marked.stampedOn = photo.node();
    marked.stampedPart = [all] { return all; };
    return graphics::makeImage(std::move(marked));
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
        log(u"Failed to mark a photo: "_s + QString::fromUtf8(error.what()));
        return std::nullopt;
    }
}

} // namespace brenvaldo::platform::drawing
