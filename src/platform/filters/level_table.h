// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>
#include <functional>
#include <vector>

namespace brenvaldo::platform::filters {

/// A function of levels from 0 to 1, looked up with interpolation.
class LevelTable
{
public:
    LevelTable(const std::function<double(double)>& function, int steps)
        : m_steps(static_cast<float>(steps))
    {
        for (int i = 0; i <= steps; ++i)
            m_values.push_back(static_cast<float>(function(static_cast<double>(i) / steps)));
        m_values.push_back(m_values.back()); // the neighbour of 1
    }

    /// `level` must lie from 0 to 1.
    [[nodiscard]] float operator()(float level) const
    {
        const float place = level * m_steps;
        const auto index = static_cast<std::size_t>(static_cast<int>(place));
        const float share = place - static_cast<float>(index);
        return m_values[index] + share * (m_values[index + 1] - m_values[index]);
    }

private:
    float m_steps;
    std::vector<float> m_values;
};

} // namespace brenvaldo::platform::filters
