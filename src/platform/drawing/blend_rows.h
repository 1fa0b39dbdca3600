// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "blend_block.h"

#include <platform/graphics/image_node.h>
#include <platform/graphics/region_kernel.h>

#include <QRect>

#include <algorithm>
#include <limits>

namespace brenvaldo::platform::drawing {

/// The samples of pixels as a block has them.
template <class Sample>
class BlockSamples
{
public:
    explicit BlockSamples(const graphics::ImageNode& node)
        : m_colors(graphics::colorBands(node.colorModel))
        , m_bands(m_colors + (node.hasAlpha ? 1 : 0))
        , m_isInk(node.colorModel == graphics::ColorModel::Cmyk)
    {
    }

    [[nodiscard]] int colors() const { return m_colors; }
    [[nodiscard]] int bands() const { return m_bands; }

    void load(const Sample* pixels, int count, BlendBlock& block) const
    {
        for (int color = 0; color < m_colors; ++color)
            loadPlane(pixels + color, count, m_isInk, planeOf(block, color));
        if (m_bands > m_colors)
            loadPlane(pixels + m_colors, count, false, block.alpha);
        else
            std::fill_n(block.alpha.begin(), count, 1.0F);
    }

    void store(const BlendBlock& block, int count, Sample* pixels) const
    {
        for (int color = 0; color < m_colors; ++color)
            storePlane(
                block.colors[static_cast<std::size_t>(color)], count, m_isInk, pixels + color
            );
        if (m_bands > m_colors)
            storePlane(block.alpha, count, false, pixels + m_colors);
    }

private:
    static constexpr float full = std::numeric_limits<Sample>::max();

    static BlendBlock::Plane& planeOf(BlendBlock& block, int color)
    {
        return block.colors[static_cast<std::size_t>(color)];
    }

    void loadPlane(const Sample* samples, int count, bool isInk, BlendBlock::Plane& plane) const
    {
        for (std::size_t i = 0; i < static_cast<std::size_t>(count); ++i) {
            const float value = samples[i * static_cast<std::size_t>(m_bands)] / full;
            plane[i] = isInk ? 1 - value : value;
        }
    }

    void storePlane(const BlendBlock::Plane& plane, int count, bool isInk, Sample* samples) const
    {
        for (std::size_t i = 0; i < static_cast<std::size_t>(count); ++i) {
            const float value = std::clamp(isInk ? 1 - plane[i] : plane[i], 0.0F, 1.0F);
            samples[i * static_cast<std::size_t>(m_bands)]
                = static_cast<Sample>(static_cast<int>(value * full + 0.5F));
        }
    }

    int m_colors;
    int m_bands;
    bool m_isInk;
};

/// Lays a layer over a part of a photo's rows; the photo is the first input.
///
/// `fill(row, x, count, block)` sets the colours and the alpha of the layer's pixels from column
/// `x` of the photo on.
template <class Sample, std::size_t InputCount, class Fill>
class BlendRows
{
public:
    BlendRows(const graphics::ImageNode& photo, const QRect& area, BlendMode mode, Fill fill)
        : m_samples(photo)
        , m_area(area)
        , m_mode(mode)
        , m_fill(std::move(fill))
    {
    }

    void operator()(const graphics::KernelRow<InputCount>& row) const
    {
        auto* out = row.template out<Sample>();
        std::copy_n(row.template input<Sample>(0), qsizetype{row.count} * m_samples.bands(), out);
        if (row.y < m_area.top() || row.y > m_area.bottom())
            return;
        const int end = std::min(row.x + row.count, m_area.right() + 1);
        for (int x = std::max(row.x, m_area.left()); x < end; x += BlendBlock::size)
            layBlock(row, x, std::min(end - x, BlendBlock::size));
    }

private:
    void layBlock(const graphics::KernelRow<InputCount>& row, int x, int count) const
    {
        auto* pixels = row.template out<Sample>() + qsizetype{x - row.x} * m_samples.bands();
        BlendBlock photo;
        BlendBlock layer;
        m_samples.load(pixels, count, photo);
        m_fill(row, x, count, layer);
        blend(m_mode, layer, photo, {.count = count, .colors = m_samples.colors()});
        m_samples.store(photo, count, pixels);
    }

    BlockSamples<Sample> m_samples;
    QRect m_area;
    BlendMode m_mode;
    Fill m_fill;
};

/// `photo` with the rows that `BlendRows` makes of it; `inputs` begins with its pixels.
template <class Sample, std::size_t InputCount, class Fill>
graphics::ImageNode blendedNode(
    const graphics::ImageNode& photo,
    const std::array<vips::VImage, InputCount>& inputs,
    const QRect& area,
    BlendMode mode,
    Fill fill
)
{
    const vips::VImage& pixels = photo.pixels;
    return photo.withPixels(graphics::mapRows(
        inputs,
        {.bands = pixels.bands(),
         .format = pixels.format(),
         .interpretation = pixels.interpretation()},
        BlendRows<Sample, InputCount, Fill>(photo, area, mode, std::move(fill))
    ));
}

} // namespace brenvaldo::platform::drawing
