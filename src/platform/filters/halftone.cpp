// SPDX-License-Identifier: GPL-3.0-or-later
#include "halftone.h"

#include "level_table.h"
#include "pixel_node.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace brenvaldo::platform::filters {

namespace {

/// Places of the pixels of a block in the turned pattern, in units of its width.
struct PatternRow
{
    float x;
    float y;
    float xStep;
    float yStep;
};

/// Calculated once a block in double: far from the centre a float has no fractions left.
class PatternSpace
{
public:
    PatternSpace(const Halftone& halftone, int height)
        : m_left(0.5 - halftone.centreX)
        , m_top(height - 0.5 - halftone.centreY)
        , m_cosine(std::cos(halftone.angle))
        , m_sine(std::sin(halftone.angle))
        , m_width(std::max(1.0, halftone.width))
    {
    }

    /// Whole periods are left out where `isPeriodic`.
    [[nodiscard]] PatternRow row(const BlockPlace& place, bool isPeriodic) const
    {
        const double right = m_left + place.x;
        const double up = m_top - place.y;
        const double x = (right * m_cosine + up * m_sine) / m_width;
        const double y = (up * m_cosine - right * m_sine) / m_width;
        return {
            .x = static_cast<float>(isPeriodic ? x - std::floor(x) : x),
            .y = static_cast<float>(isPeriodic ? y - std::floor(y) : y),
            .xStep = static_cast<float>(m_cosine / m_width),
            .yStep = static_cast<float>(-m_sine / m_width)};
    }

private:
    double m_left;
    double m_top;
    double m_cosine;
    double m_sine;
    double m_width;
};

/// 0 at whole numbers, 1 half-way between them.
inline float triangle(float u) { return 2 * std::abs(u - std::floor(u + 0.5F)); }

BRENVALDO_VECTOR_LOOP void lineThresholds(const PatternRow& row, PixelBlock::Plane& out)
{
    for (int i = 0; i < PixelBlock::capacity; ++i)
        out[static_cast<std::size_t>(i)] = triangle(row.y + static_cast<float>(i) * row.yStep);
}

BRENVALDO_VECTOR_LOOP void ringThresholds(const PatternRow& row, PixelBlock::Plane& out)
{
    for (int i = 0; i < PixelBlock::capacity; ++i) {
        const float x = row.x + static_cast<float>(i) * row.xStep;
        const float y = row.y + static_cast<float>(i) * row.yStep;
        out[static_cast<std::size_t>(i)] = triangle(std::sqrt(x * x + y * y));
    }
}

/// How large a part of a dot pattern is as dark as a height of its waves, in steps of 1/16.
constexpr std::array<double, 17> dotDistribution
    = {0,
       .04110,
       .08515,
       .13275,
       .18478,
       .24255,
       .30831,
       .38679,
       .5,
       .61321,
       .69169,
       .75745,
       .81522,
       .86725,
       .91485,
       .95890,
       1};

double dotThreshold(double height)
{
    const double place = height * 16;
    const auto index = std::min<std::size_t>(static_cast<std::size_t>(place), 15);
    const double share = place - static_cast<double>(index);
    return 1 - std::lerp(dotDistribution[index], dotDistribution[index + 1], share);
}

/// A cosine wave over one period, between 0 and 1.
double wave(double period) { return 0.5 + 0.5 * std::cos(2 * std::numbers::pi * period); }

void dotThresholds(const PatternRow& row, PixelBlock::Plane& out)
{
    static const LevelTable waves(wave, 1024);
    static const LevelTable thresholds(dotThreshold, 16 * 64);
    for (int i = 0; i < PixelBlock::capacity; ++i) {
        const float x = row.x + static_cast<float>(i) * row.xStep;
        const float y = row.y + static_cast<float>(i) * row.yStep;
        const float height = (waves(x - std::floor(x)) + waves(y - std::floor(y))) / 2;
        out[static_cast<std::size_t>(i)] = thresholds(height);
    }
}

/// The light that has to be compared with a threshold so that the tone is kept, at `softness`.
inline float biasedLight(float light, float softness)
{
    const float half = softness / 2;
    const float dark = std::sqrt(2 * softness * light) - half;
    const float bright = 1 + half - std::sqrt(2 * softness * (1 - light));
    return light < half ? dark : light > 1 - half ? bright : light;
}

BRENVALDO_VECTOR_LOOP void
compare(const PixelBlock& in, const PixelBlock::Plane& thresholds, float softness, PixelBlock& out)
{
    for (std::size_t i = 0; i < PixelBlock::capacity; ++i) {
        const float light
            = std::min(std::max(Luminance::of(in.red[i], in.green[i], in.blue[i]), 0.0F), 1.0F);
        const float above = (biasedLight(light, softness) - thresholds[i]) / softness + 0.5F;
        const float value = std::min(std::max(above, 0.0F), 1.0F);
        out.red[i] = value;
        out.green[i] = value;
        out.blue[i] = value;
    }
}

void findThresholds(
    Halftone::Pattern pattern,
    const PatternSpace& space,
    const BlockPlace& place,
    PixelBlock::Plane& out
)
{
    switch (pattern) {
    case Halftone::Pattern::Rings:
        return ringThresholds(space.row(place, false), out);
    case Halftone::Pattern::Dots:
        return dotThresholds(space.row(place, true), out);
    case Halftone::Pattern::Lines:
        return lineThresholds(space.row(place, true), out);
    }
}

} // namespace

FilterImage screened(const FilterImage& image, const Halftone& halftone)
{
    constexpr double onePixel = 2; // of softness, times the width
    const double width = std::max(1.0, halftone.width);
    const auto softness
        = static_cast<float>(std::min(1.0, std::max(1 - halftone.sharpness, onePixel / width)));
    const PatternSpace space(halftone, image.pixelSize().height);
    return mapped(
        image,
        Space::Linear,
        [pattern = halftone.pattern,
         space,
         softness](const PixelBlock& in, const BlockPlace& place, PixelBlock& out) {
            PixelBlock::Plane thresholds;
            findThresholds(pattern, space, place, thresholds);
            compare(in, thresholds, softness, out);
        }
    );
}

} // namespace brenvaldo::platform::filters
