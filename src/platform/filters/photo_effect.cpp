// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo_effect.h"

#include "level_table.h"
#include "pixel_node.h"

#include <platform/graphics/gray_levels.h>

#include <algorithm>
#include <cmath>

namespace brenvaldo::platform::filters {

namespace {

using Triple = PhotoEffect::Triple;

constexpr std::array<Triple, 3> identity = {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};

constexpr Triple all(double value) { return {value, value, value}; }

constexpr std::array<Triple, 3> gray(const Triple& weights) { return {weights, weights, weights}; }

double clampedLevel(double value) { return std::clamp(value, 0.0, 1.0); }

/// What becomes of a level of one component once the colours are mixed.
double bentLevel(const PhotoEffect& effect, std::size_t component, double level)
{
    const double curve = effect.curve[component];
    const double black = effect.black[component];
    const double white = effect.white[component];
    const double bright = std::pow(level, effect.gamma[component]);
    const double bent = bright + curve * bright * (1 - bright) * (2 * bright - 1);
    return clampedLevel(black + (white - black) * bent);
}

/// An effect with its curves looked up, for many pixels.
class FastEffect
{
public:
    explicit FastEffect(const PhotoEffect& effect)
        : m_saturation(static_cast<float>(effect.saturation))
    {
        constexpr int steps = 2048;
        for (std::size_t i = 0; i < 3; ++i) {
            for (std::size_t k = 0; k < 3; ++k)
                m_mix[i][k] = static_cast<float>(effect.mix[i][k]);
            m_tables.emplace_back(
                [&effect, i](double level) { return bentLevel(effect, i, level); }, steps
            );
        }
    }

    void apply(const PixelBlock& in, PixelBlock& out) const
    {
        mixColors(in, out);
        m_tables[0].lookUp(out.red, out.red);
        m_tables[1].lookUp(out.green, out.green);
        m_tables[2].lookUp(out.blue, out.blue);
    }

private:
    static float clampedLevel(float level) { return std::min(std::max(level, 0.0F), 1.0F); }

    BRENVALDO_VECTOR_LOOP void mixColors(const PixelBlock& in, PixelBlock& out) const
    {
        const auto mix = m_mix; // a copy, which the output can't be a part of
        const float saturation = m_saturation;
        for (std::size_t i = 0; i < PixelBlock::capacity; ++i) {
            const auto mixed = [&](const std::array<float, 3>& row) {
                return clampedLevel(
                    row[0] * in.red[i] + row[1] * in.green[i] + row[2] * in.blue[i]
                );
            };
            const float red = mixed(mix[0]);
            const float green = mixed(mix[1]);
            const float blue = mixed(mix[2]);
            const float gray = Luminance::of(red, green, blue);
            out.red[i] = clampedLevel(gray + saturation * (red - gray));
            out.green[i] = clampedLevel(gray + saturation * (green - gray));
            out.blue[i] = clampedLevel(gray + saturation * (blue - gray));
        }
    }

    std::array<std::array<float, 3>, 3> m_mix = {};
    float m_saturation;
    std::vector<LevelTable> m_tables;
};

/// The black-and-white film mixes the same grey for all components.
double noirLevel(double red, double green, double blue)
{
    const Triple& weights = noir.mix[0];
    return bentLevel(
        noir, 0, clampedLevel(weights[0] * red + weights[1] * green + weights[2] * blue)
    );
}

} // namespace

const PhotoEffect noir = {
    .mix = gray({0.34, 0.55, 0.11}),
    .saturation = 1,
    .gamma = all(1.15),
    .curve = all(1),
    .black = all(-0.05),
    .white = all(1.05),
};

const PhotoEffect mono = {
    .mix = gray({0.30, 0.59, 0.11}),
    .saturation = 1,
    .gamma = all(0.95),
    .curve = all(-0.15),
    .black = all(0.03),
    .white = all(0.96),
};

const PhotoEffect chrome = {
    .mix = identity,
    .saturation = 1.25,
    .gamma = {0.96, 0.97, 0.97},
    .curve = {0.35, 0.35, 0.30},
    .black = {0, 0, 0.01},
    .white = all(1),
};

const PhotoEffect process = {
    .mix = {{{0.96, 0.04, 0}, {0.02, 0.96, 0.02}, {0, 0.06, 0.94}}},
    .saturation = 0.95,
    .gamma = {1.06, 0.97, 0.92},
    .curve = {0.20, 0.10, -0.30},
    .black = {0.01, 0.02, 0.07},
    .white = {0.93, 0.98, 0.97},
};

const PhotoEffect fade = {
    .mix = identity,
    .saturation = 0.60,
    .gamma = all(0.95),
    .curve = all(-0.25),
    .black = {0.09, 0.09, 0.10},
    .white = {0.93, 0.93, 0.92},
};

const PhotoEffect instant = {
    .mix = {{{0.94, 0.06, 0}, {0.03, 0.93, 0.04}, {0.02, 0.08, 0.90}}},
    .saturation = 0.75,
    .gamma = {0.90, 0.95, 1.02},
    .curve = {0.10, 0.05, -0.20},
    .black = {0.05, 0.05, 0.11},
    .white = {0.98, 0.95, 0.88},
};

const PhotoEffect transfer = {
    .mix = {{{0.96, 0.04, 0}, {0.02, 0.96, 0.02}, {0.04, 0.04, 0.92}}},
    .saturation = 0.90,
    .gamma = {0.88, 0.93, 1.06},
    .curve = {0.05, 0.05, 0},
    .black = {0.05, 0.04, 0.07},
    .white = {1.0, 0.97, 0.86},
};

FilterImage withPhotoEffect(const FilterImage& image, const PhotoEffect& effect)
{
    return mapped(
        image,
        Space::Encoded,
        [fast
         = FastEffect(effect)](const PixelBlock& in, const BlockPlace& /*place*/, PixelBlock& out) {
            fast.apply(in, out);
        }
    );
}

graphics::Image photoEffectNoir(const graphics::Image& image)
{
    return graphics::withGrayLevels(image, noirLevel);
}

} // namespace brenvaldo::platform::filters
