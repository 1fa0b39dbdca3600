// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <vector>

namespace brenvaldo::platform::drawing {

/// One plane of samples, row by row from the top down.
struct Plane
{
    int width = 0;
    int height = 0;
    std::vector<float> samples;

    [[nodiscard]] float* row(int y) { return samples.data() + offset(y); }
    [[nodiscard]] const float* row(int y) const { return samples.data() + offset(y); }

private:
    [[nodiscard]] std::size_t offset(int y) const
    {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(width);
    }
};

/// A plane of zeros.
[[nodiscard]] Plane emptyPlane(int width, int height);

/// What lies beyond the edges of a plane.
enum class Edge {
    Zero,
    Wrapped, ///< the plane again, without end
    Repeated ///< the samples of the edge
};

/// The plane blurred with a Gaussian of `sigma` pixels, which ends at about 3 sigma; 0 leaves it as
/// it is.
[[nodiscard]] Plane blurred(const Plane& plane, double sigma, Edge edge);

} // namespace brenvaldo::platform::drawing
