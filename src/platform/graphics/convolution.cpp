// SPDX-License-Identifier: GPL-3.0-or-later
#include "convolution.h"

#include "vector_loop.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace brenvaldo::platform::graphics {

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
    std::size_t done = 0;
    const auto sumUp = [&]<std::size_t block>(std::array<float, block> sums) {
        for (std::size_t tap = 0; tap < kernel.size(); ++tap) {
            const float weight = kernel[tap];
            const float* from = in + done + tap * step;
            for (std::size_t i = 0; i < block; ++i)
                sums[i] += weight * from[i];
        }
        std::copy(sums.begin(), sums.end(), out + done);
        done += block;
    };
    constexpr std::size_t wide = 64; // as many sums as stay in registers
    constexpr std::size_t narrow = 8;
    while (done + wide <= count)
        sumUp(std::array<float, wide>{});
    while (done + narrow <= count)
        sumUp(std::array<float, narrow>{});
    while (done < count)
        sumUp(std::array<float, 1>{});
}

} // namespace brenvaldo::platform::graphics
