// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

namespace brenvaldo::platform::drawing {

/// A part of a picture: how far each pixel belongs to it, from 0 to 1, row by row.
struct Coverage
{
    int width = 0;
    int height = 0;
    const float* samples = nullptr;
};

/// Measures how far the pixels of a part lie inside of its edge.
///
/// The edge runs where the coverage is a half, to a fraction of a pixel. What lies beyond the
/// picture is outside.
class EdgeDistance
{
public:
    /// Distances beyond `reach` pixels are not told apart. `part` must outlive this object.
    EdgeDistance(const Coverage& part, int reach);

    /// The distances of the pixels of row `y` from the edge, in pixels; below 0 outside of the
    /// part.
    [[nodiscard]] std::vector<float> ofRow(int y) const;

private:
    /// What the edge is measured from: pixels outside, and those inside that the edge crosses.
    struct Nearest
    {
        std::vector<float> along; ///< distance along the row
        std::vector<float> offset; ///< from the middle of that pixel on to the edge
    };

    /// Neighbouring pixels of a row that are all inside.
    struct Run
    {
        int y = 0;
        int begin = 0;
        int end = 0;
    };

    [[nodiscard]] const float* rowOf(int y) const;
    [[nodiscard]] std::vector<bool> anchorsOf(int y) const;
    void measureRow(int y);
    void measureRun(const Run& run, float* distances) const;
    void keepNearer(const Run& run, int rows, float* distances) const;

    Coverage m_part;
    int m_reach;
    Nearest m_nearest; ///< of each pixel along its row
};

} // namespace brenvaldo::platform::drawing
