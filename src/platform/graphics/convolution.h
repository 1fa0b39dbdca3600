// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <vector>

namespace brenvaldo::platform::graphics {

/// Weights of a Gaussian of `sigma` samples, which ends at 3 sigma on both sides; their sum is 1.
[[nodiscard]] std::vector<float> gaussianKernel(double sigma);

/// `out[i]` is the sum of `kernel[tap] * in[i + tap * step]`.
void convolve(
    const float* in,
    std::size_t step,
    const std::vector<float>& kernel,
    float* out,
    std::size_t count
);

} // namespace brenvaldo::platform::graphics
