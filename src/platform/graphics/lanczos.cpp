// SPDX-License-Identifier: GPL-3.0-or-later
#include "lanczos.h"

#include "block_loop.h"

#include <algorithm>
#include <cmath>
#include <complex>
#include <numbers>
#include <span>

namespace brenvaldo::platform::graphics {

namespace {

constexpr double lobes = 3;

/// Vectors of samples that stand anywhere.
using FourSamples [[gnu::vector_size(16), gnu::aligned(4), gnu::may_alias]] = float;
using EightSamples [[gnu::vector_size(32), gnu::aligned(4), gnu::may_alias]] = float;
constexpr int fourSamples = 4;

/// A point of the sine that walks on in equal steps.
class SineWalk
{
public:
    SineWalk(double start, double step)
        : m_point(std::polar(1.0, start))
        , m_turn(std::polar(1.0, step))
    {
    }

    [[nodiscard]] double sine() const { return m_point.imag(); }

    void goOn()
    {
        m_point
            = {m_point.real() * m_turn.real() - m_point.imag() * m_turn.imag(),
               m_point.real() * m_turn.imag() + m_point.imag() * m_turn.real()};
    }

private:
    std::complex<double> m_point;
    std::complex<double> m_turn;
};

/// sinc(x) * sinc(x / 3) at `angle`, pi * x / 3, by the sine of the triple angle.
double lanczos(double angle, double sine)
{
    const double square = sine * sine;
    return angle == 0 ? 1 : square * (3 - 4 * square) / (3 * angle * angle);
}

/// Adds the neighbours and weights of the next pixel, whose centre lies at `centre`.
void addPixel(Reduction& reduction, int from, double centre, double scale)
{
    const double reach = lobes * scale;
    const int begin = static_cast<int>(std::ceil(centre - reach));
    const int end = static_cast<int>(std::floor(centre + reach)) + 1;
    const int first = std::clamp(begin, 0, from - reduction.taps);
    const auto taps = static_cast<std::size_t>(reduction.taps);
    reduction.first.push_back(first);
    reduction.weights.resize(reduction.weights.size() + taps);
    const auto weights = std::span(reduction.weights).last(taps);
    const double step = std::numbers::pi / reach;
    SineWalk walk((begin - centre) * step, step);
    double sum = 0;
    for (int neighbour = begin; neighbour < end; ++neighbour, walk.goOn()) {
        const double weight = lanczos((neighbour - centre) * step, walk.sine());
        const auto tap = static_cast<std::size_t>(std::clamp(neighbour, 0, from - 1) - first);
        weights[tap] += static_cast<float>(weight);
        sum += weight;
    }
    for (float& weight : weights)
        weight /= static_cast<float>(sum);
}

/// Up to four bands of the pixels; what it writes behind them the next pixel or band overwrites.
BRENVALDO_BLOCK_LOOP void reduceBands(
    const Reduction& reduction, PixelSpan pixels, int bands, Lines<const float> in, Lines<float> out
)
{
    const float* weight = reduction.weightsOf(pixels.begin);
    const int* first = reduction.first.data();
    const int taps = reduction.taps;
    for (int pixel = pixels.begin; pixel < pixels.end; ++pixel) {
        const float* from
            = in.samples + static_cast<std::ptrdiff_t>(first[pixel] - first[pixels.begin]) * bands;
        FourSamples sums[linesAtOnce] = {};
        for (int tap = 0; tap < taps; ++tap, ++weight, from += bands) {
            for (std::size_t line = 0; line < linesAtOnce; ++line)
                sums[line]
                    += *weight * *reinterpret_cast<const FourSamples*>(from + line * in.step);
        }
        for (std::size_t line = 0; line < linesAtOnce; ++line)
            *reinterpret_cast<FourSamples*>(out.samples + line * out.step) = sums[line];
        out.samples += bands;
    }
}

/// Sums that stay in registers.
constexpr std::size_t vectorsAtOnce = 4;

BRENVALDO_BLOCK_LOOP void addUpVectors(
    const float* const* lines, const float* weights, std::size_t taps, float* out, std::size_t count
)
{
    constexpr std::size_t step = sizeof(EightSamples) / sizeof(float) * vectorsAtOnce;
    static_assert(step <= sampleSlack);
    for (std::size_t done = 0; done < count; done += step) {
        EightSamples sums[vectorsAtOnce] = {};
        for (std::size_t tap = 0; tap < taps; ++tap) {
            const EightSamples* from = reinterpret_cast<const EightSamples*>(lines[tap] + done);
            for (std::size_t i = 0; i < vectorsAtOnce; ++i)
                sums[i] += weights[tap] * from[i];
        }
        EightSamples* to = reinterpret_cast<EightSamples*>(out + done);
        for (std::size_t i = 0; i < vectorsAtOnce; ++i)
            to[i] = sums[i];
    }
}

} // namespace

Reduction lanczosReduction(int from, int to)
{
    const double scale = static_cast<double>(from) / to;
    Reduction reduction;
    reduction.taps = std::min(static_cast<int>(std::floor(2 * lobes * scale)) + 1, from);
    for (int pixel = 0; pixel < to; ++pixel)
        addPixel(reduction, from, (pixel + 0.5) * scale - 0.5, scale);
    return reduction;
}

void reduceLines(
    const Reduction& reduction, PixelSpan pixels, int bands, Lines<const float> in, Lines<float> out
)
{
    for (int band = (bands - 1) / fourSamples * fourSamples; band >= 0; band -= fourSamples)
        reduceBands(
            reduction, pixels, bands, {in.samples + band, in.step}, {out.samples + band, out.step}
        );
}

void addUpLines(
    const std::vector<const float*>& lines, const float* weights, float* out, std::size_t count
)
{
    addUpVectors(lines.data(), weights, lines.size(), out, count);
}

} // namespace brenvaldo::platform::graphics
