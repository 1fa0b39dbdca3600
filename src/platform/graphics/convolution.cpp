// SPDX-License-Identifier: GPL-3.0-or-later
#include "convolution.h"

#include "vector_loop.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace brenvaldo::platform::graphics {

namespace {

/// `samples(tap)` points to the samples that the weight of a tap is for. Part of each loop that is
/// compiled for several processors.
template <class Samples>
[[gnu::always_inline]] inline void
sumUp(const Samples& samples, const std::vector<float>& kernel, float* out, std::size_t count)
{
    constexpr std::size_t block = 32; // sums that stay in registers
    std::size_t done = 0;
    for (; done + block <= count; done += block) {
        std::array<float, block> sums{};
        for (std::size_t tap = 0; tap < kernel.size(); ++tap) {
            const float weight = kernel[tap];
            const float* from = samples(tap) + done;
            for (std::size_t i = 0; i < block; ++i)
                sums[i] += weight * from[i];
        }
        std::copy(sums.begin(), sums.end(), out + done);
    }
    for (; done < count; ++done) {
        float sum = 0;
        for (std::size_t tap = 0; tap < kernel.size(); ++tap)
            sum += kernel[tap] * samples(tap)[done];
        out[done] = sum;
    }
}

} // namespace

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

BRENVALDO_VECTOR_LOOP void convolve(
    const float* in,
    std::size_t step,
    const std::vector<float>& kernel,
    float* out,
    std::size_t count
)
{
    sumUp([in, step](std::size_t tap) { return in + tap * step; }, kernel, out, count);
}

BRENVALDO_VECTOR_LOOP void convolveRows(
    const float* const* rows, const std::vector<float>& kernel, float* out, std::size_t count
)
{
    sumUp([rows](std::size_t tap) { return rows[tap]; }, kernel, out, count);
}

} // namespace brenvaldo::platform::graphics
