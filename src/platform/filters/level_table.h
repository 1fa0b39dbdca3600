// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "pixel_block.h"

#include <functional>
#include <vector>

namespace brenvaldo::platform::filters {

/// A function of levels from 0 to 1, looked up with interpolation.
class LevelTable
{
public:
    LevelTable(const std::function<double(double)>& function, int steps);

    /// `level` must lie from 0 to 1.
    [[nodiscard]] float operator()(float level) const
    {
        const float place = level * m_steps;
        const int index = static_cast<int>(place);
        const float* values = m_values.data() + index;
        return values[0] + (place - static_cast<float>(index)) * (values[1] - values[0]);
    }

    /// The same for many levels; `in` may be `out`.
    void lookUp(const PixelBlock::Plane& in, PixelBlock::Plane& out) const;

private:
    float m_steps;
    std::vector<float> m_values;
};

} // namespace brenvaldo::platform::filters
