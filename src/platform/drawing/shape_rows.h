// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "blend_rows.h"
#include "paint_rows.h"
#include "shape_mask.h"

namespace brenvaldo::platform::drawing {

/// Paints a shape on the rows of a photo, in place.
template <class Sample>
class ShapeRows
{
public:
    ShapeRows(const graphics::ImageNode& photo, const PaintedShape& painting)
        : m_mask(painting.shape, {photo.pixels.width(), photo.pixels.height()})
        , m_samples(photo)
        , m_paint(photo, painting.paint, painting.opacity)
        , m_mode(painting.mode)
    {
    }

    /// `pixels` are those at `place`.
    void paint(const BlockPlace& place, Sample* pixels) const
    {
        for (const ShapeMask::Run& run : m_mask.row(place.y)) {
            const int end = std::min(run.end, place.x + place.count);
            for (int x = std::max(run.begin, place.x); x < end; x += BlendBlock::size)
                paintBlock(
                    {.x = x, .y = place.y, .count = std::min(end - x, BlendBlock::size)},
                    run.coverage,
                    pixels + qsizetype{x - place.x} * m_samples.bands()
                );
        }
    }

private:
    void paintBlock(const BlockPlace& place, quint8 coverage, Sample* pixels) const
    {
        BlendBlock photo;
        BlendBlock layer;
        m_samples.load(pixels, place.count, photo);
        m_paint.fill(place, layer);
        const float share = coverage / 255.0F;
        for (std::size_t i = 0; i < static_cast<std::size_t>(place.count); ++i)
            layer.alpha[i] *= share;
        blend(m_mode, layer, photo, {.count = place.count, .colors = m_samples.colors()});
        m_samples.store(photo, place.count, pixels);
    }

    ShapeMask m_mask;
    BlockSamples<Sample> m_samples;
    PaintRows m_paint;
    BlendMode m_mode;
};

} // namespace brenvaldo::platform::drawing
