// SPDX-License-Identifier: GPL-3.0-or-later
#include "level_table.h"

namespace brenvaldo::platform::filters {

LevelTable::LevelTable(const std::function<double(double)>& function, int steps)
    : m_steps(static_cast<float>(steps))
{
    for (int i = 0; i <= steps; ++i)
        m_values.push_back(static_cast<float>(function(static_cast<double>(i) / steps)));
    m_values.push_back(m_values.back()); // the neighbour of 1
}

BRENVALDO_VECTOR_LOOP void
LevelTable::lookUp(const PixelBlock::Plane& in, PixelBlock::Plane& out) const
{
    const float* const values = m_values.data();
    const float steps = m_steps;
    PixelBlock::Plane found;
    for (std::size_t i = 0; i < PixelBlock::capacity; ++i) {
        const float place = in[i] * steps;
        const int index = static_cast<int>(place);
        const float before = values[index];
        found[i] = before + (place - static_cast<float>(index)) * (values[index + 1] - before);
    }
    out = found;
}

} // namespace brenvaldo::platform::filters
