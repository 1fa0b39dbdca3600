// SPDX-License-Identifier: GPL-3.0-or-later
#include "blurred_plane.h"

#include <platform/graphics/convolution.h>

#include <algorithm>
#include <cmath>
#include <optional>

namespace brenvaldo::platform::drawing {

namespace {

/// Position of the sample that stands at `at`, which may lie beyond the edges of `size` samples.
std::optional<int> sourceOf(int at, int size, Edge edge)
{
    if (at >= 0 && at < size)
        return at;
    switch (edge) {
    case Edge::Zero:
        return std::nullopt;
    case Edge::Wrapped:
        return ((at % size) + size) % size;
    case Edge::Repeated:
        return std::clamp(at, 0, size - 1);
    }
    return std::nullopt;
}

/// Three means in a row, which look like a Gaussian; each is of `radius` samples on both sides.
class RepeatedMean
{
public:
    explicit RepeatedMean(double sigma)
        : m_radius(static_cast<int>(std::lround((std::sqrt(4 * sigma * sigma + 1) - 1) / 2)))
    {
    }

    [[nodiscard]] int reach() const { return passes * m_radius; }

    /// `out[i]` is the mean of means around `in[i + reach() * step]`, for `count` lines of `step`
    /// samples. `in` has `2 * reach()` lines more and is used up.
    void apply(std::vector<float>& in, std::size_t step, float* out, std::size_t count) const
    {
        const auto window = 2 * static_cast<std::size_t>(m_radius);
        for (std::size_t pass = passes; pass > 0; --pass)
            mean(in, step, count + (pass - 1) * window);
        std::copy_n(in.begin(), count * step, out);
    }

private:
    static constexpr int passes = 3;

    /// Replaces each of the first `count` lines by the mean of itself and those behind it.
    void mean(std::vector<float>& lines, std::size_t step, std::size_t count) const
    {
        const auto window = 2 * static_cast<std::size_t>(m_radius) + 1;
        std::vector<double> sums(step);
        for (std::size_t i = 0; i < (window - 1) * step; ++i)
            sums[i % step] += static_cast<double>(lines[i]);
        for (std::size_t line = 0; line < count; ++line) {
            float* first = lines.data() + line * step;
            const float* next = first + (window - 1) * step;
            for (std::size_t i = 0; i < step; ++i) {
                sums[i] += static_cast<double>(next[i]);
                const auto oldest = static_cast<double>(first[i]);
                first[i] = static_cast<float>(sums[i] / static_cast<double>(window));
                sums[i] -= oldest;
            }
        }
    }

    int m_radius;
};

/// The row with what lies beyond its edges, `reach` samples on both sides.
void padRow(const float* row, int width, int reach, Edge edge, std::vector<float>& padded)
{
    const auto beyond = [&](int x) {
        const auto source = sourceOf(x, width, edge);
        return source ? row[*source] : 0.0F;
    };
    float* middle = padded.data() + reach;
    for (int x = -reach; x < 0; ++x)
        middle[x] = beyond(x);
    std::copy_n(row, width, middle);
    for (int x = width; x < width + reach; ++x)
        middle[x] = beyond(x);
}

/// The rows blurred, with the rows above and below that the blur across them needs. `blurRow` takes
/// a padded row, which it may use up, and where the blurred one goes.
template <class BlurRow>
Plane rowsBlurred(const Plane& plane, int reach, Edge edge, const BlurRow& blurRow)
{
    Plane result = emptyPlane(plane.width, plane.height + 2 * reach);
    std::vector<float> padded(static_cast<std::size_t>(plane.width + 2 * reach));
    for (int y = 0; y < plane.height; ++y) {
        padRow(plane.row(y), plane.width, reach, edge, padded);
        blurRow(padded, result.row(y + reach));
    }
    const auto fill = [&](int y) {
        if (const auto source = sourceOf(y, plane.height, edge))
            std::copy_n(result.row(*source + reach), plane.width, result.row(y + reach));
    };
    for (int y = 1; y <= reach; ++y) {
        fill(-y);
        fill(plane.height - 1 + y);
    }
    return result;
}

Plane blurredByKernel(const Plane& plane, double sigma, Edge edge)
{
    const std::vector<float> kernel = graphics::gaussianKernel(sigma);
    const auto width = static_cast<std::size_t>(plane.width);
    const Plane rows = rowsBlurred(
        plane,
        static_cast<int>(kernel.size()) / 2,
        edge,
        [&](const std::vector<float>& padded, float* out) {
            graphics::convolve(padded.data(), 1, kernel, out, width);
        }
    );
    Plane result = emptyPlane(plane.width, plane.height);
    for (int y = 0; y < plane.height; ++y)
        graphics::convolve(rows.row(y), width, kernel, result.row(y), width);
    return result;
}

Plane blurredByMeans(const Plane& plane, double sigma, Edge edge)
{
    const RepeatedMean means(sigma);
    const auto width = static_cast<std::size_t>(plane.width);
    Plane rows
        = rowsBlurred(plane, means.reach(), edge, [&](std::vector<float>& padded, float* out) {
              means.apply(padded, 1, out, width);
          });
    Plane result = emptyPlane(plane.width, plane.height);
    means.apply(rows.samples, width, result.row(0), static_cast<std::size_t>(plane.height));
    return result;
}

} // namespace

Plane emptyPlane(int width, int height)
{
    return {
        .width = width,
        .height = height,
        .samples
        = std::vector<float>(static_cast<std::size_t>(width) * static_cast<std::size_t>(height))};
}

Plane blurred(const Plane& plane, double sigma, Edge edge)
{
    constexpr double longestKernel = 30; // from here on the means are faster, and as smooth
    if (sigma <= 0 || plane.samples.empty())
        return plane;
    return sigma < longestKernel ? blurredByKernel(plane, sigma, edge)
                                 : blurredByMeans(plane, sigma, edge);
}

} // namespace brenvaldo::platform::drawing
