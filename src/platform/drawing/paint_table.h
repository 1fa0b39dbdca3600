// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "blend_rows.h"
#include "paint_rows.h"

#include <array>
#include <vector>

namespace brenvaldo::platform::drawing {

/// True for a mode that mixes each component for itself.
[[nodiscard]] constexpr bool isSeparable(BlendMode mode)
{
    return mode != BlendMode::Color && mode != BlendMode::Luminosity;
}

/// What a plain paint in a separable mode makes of each sample of an opaque photo.
template <class Sample>
class PaintTable
{
public:
    PaintTable(const graphics::ImageNode& photo, const PaintRows& paint, BlendMode mode)
        : m_bands(photo.pixels.bands())
    {
        const BlockSamples<Sample> samples(photo);
        std::vector<Sample> pixels(static_cast<std::size_t>(BlendBlock::size * m_bands));
        for (int first = 0; first < sampleCount; first += BlendBlock::size) {
            for (std::size_t i = 0; i < pixels.size(); ++i)
                pixels[i] = static_cast<Sample>(first + static_cast<int>(i) / m_bands);
            BlendBlock below;
            BlendBlock above;
            samples.load(pixels.data(), BlendBlock::size, below);
            paint.fill({.x = 0, .y = 0, .count = BlendBlock::size}, above);
            blend(mode, above, below, {.count = BlendBlock::size, .colors = m_bands});
            samples.store(below, BlendBlock::size, pixels.data());
            append(pixels);
        }
    }

    void apply(Sample* pixels, int count) const
    {
        for (int band = 0; band < m_bands; ++band) {
            const Sample* table = m_tables[static_cast<std::size_t>(band)].data();
            Sample* sample = pixels + band;
            for (int i = 0; i < count; ++i, sample += m_bands)
                *sample = table[*sample];
        }
    }

private:
    static constexpr int sampleCount = std::numeric_limits<Sample>::max() + 1;

    void append(const std::vector<Sample>& pixels)
    {
        for (std::size_t i = 0; i < pixels.size(); ++i)
            m_tables[i % static_cast<std::size_t>(m_bands)].push_back(pixels[i]);
    }

    int m_bands;
    std::array<std::vector<Sample>, BlendBlock::mostColors> m_tables;
};

} // namespace brenvaldo::platform::drawing
