// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <vector>

namespace brenvaldo::platform::graphics {

/// How a line becomes a shorter one: each new pixel is the weighted sum of `taps` neighbours.
struct Reduction
{
    int taps = 0;
    std::vector<int> first; ///< neighbour of each new pixel
    std::vector<float> weights; ///< of the neighbours of each new pixel; their sum is 1

    [[nodiscard]] const float* weightsOf(int pixel) const
    {
        return weights.data() + static_cast<std::ptrdiff_t>(pixel) * taps;
    }
};

/// Lanczos's kernel of three lobes. Beyond its ends the line goes on as its outermost pixels are.
/// `to` is at most `from`.
[[nodiscard]] Reduction lanczosReduction(int from, int to);

/// How many lines are reduced side by side.
constexpr int linesAtOnce = 4;

/// The loops work in whole vectors: so many samples behind each line may be read and written.
constexpr std::size_t sampleSlack = 32;

/// Lines of samples that stand `step` samples apart.
template <class Sample>
struct Lines
{
    Sample* samples;
    std::size_t step;
};

/// The pixels of a reduced line that are asked for.
struct PixelSpan
{
    int begin = 0;
    int end = 0;
};

/// Reduces `linesAtOnce` lines of pixels of `bands` samples; `in` begins at the first neighbour of
/// the first pixel.
void reduceLines(
    const Reduction& reduction, PixelSpan pixels, int bands, Lines<const float> in, Lines<float> out
);

/// `out[i]` is the weighted sum of the samples `i` of the lines.
void addUpLines(
    const std::vector<const float*>& lines, const float* weights, float* out, std::size_t count
);

} // namespace brenvaldo::platform::graphics
