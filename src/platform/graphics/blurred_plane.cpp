// SPDX-License-Identifier: GPL-3.0-or-later
#include "blurred_plane.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

namespace brenvaldo::platform {

namespace {

std::vector<float> gaussianKernel(double sigma)
{
    const int reach = static_cast<int>(std::ceil(3 * sigma));
    std::vector<float> kernel;
    double sum = 0;
    for (int offset = -reach; offset <= reach; ++offset) {
        const double weight = std::exp(-offset * offset / (2 * sigma * sigma));
        kernel.push_back(static_cast<float>(weight));
        sum += weight;
    }
    for (float& weight : kernel)
        weight = static_cast<float>(weight / sum);
    return kernel;
}

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

/// `out[i]` is the sum of `kernel[tap] * in[i + tap * step]`.
void convolve(
    const float* __restrict in,
    std::size_t step,
    const std::vector<float>& kernel,
    float* __restrict out,
    std::size_t count
)
{
    constexpr std::size_t block = 16; // sums that stay in registers
    std::size_t done = 0;
    for (; done + block <= count; done += block) {
        std::array<float, block> sums{};
        for (std::size_t tap = 0; tap < kernel.size(); ++tap) {
            const float* from = in + done + tap * step;
            for (std::size_t i = 0; i < block; ++i)
                sums[i] += kernel[tap] * from[i];
        }
        std::copy(sums.begin(), sums.end(), out + done);
    }
    for (; done < count; ++done) {
        out[done] = 0;
        for (std::size_t tap = 0; tap < kernel.size(); ++tap)
            out[done] += kernel[tap] * in[done + tap * step];
    }
}

void blurRow(
    const float* row,
    int width,
    const std::vector<float>& kernel,
    Edge edge,
    std::vector<float>& padded,
    float* out
)
{
    const int reach = static_cast<int>(kernel.size()) / 2;
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
    convolve(padded.data(), 1, kernel, out, static_cast<std::size_t>(width));
}

/// The rows blurred, with the rows above and below that the blur across them needs.
Plane rowsBlurred(const Plane& plane, const std::vector<float>& kernel, Edge edge)
{
    const int reach = static_cast<int>(kernel.size()) / 2;
    Plane result = emptyPlane(plane.width, plane.height + 2 * reach);
    std::vector<float> padded(static_cast<std::size_t>(plane.width + 2 * reach));
    for (int y = 0; y < plane.height; ++y)
        blurRow(plane.row(y), plane.width, kernel, edge, padded, result.row(y + reach));
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
    if (sigma <= 0 || plane.samples.empty())
        return plane;
    const std::vector<float> kernel = gaussianKernel(sigma);
    const Plane rows = rowsBlurred(plane, kernel, edge);
    const auto width = static_cast<std::size_t>(plane.width);
    Plane result = emptyPlane(plane.width, plane.height);
    for (int y = 0; y < plane.height; ++y)
        convolve(rows.row(y), width, kernel, result.row(y), width);
    return result;
}

} // namespace brenvaldo::platform
