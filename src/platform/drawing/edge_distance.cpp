// SPDX-License-Identifier: GPL-3.0-or-later
#include "edge_distance.h"

#include <algorithm>
#include <cmath>

namespace brenvaldo::platform::drawing {

namespace {

constexpr float half = 0.5F;
constexpr float fullyCovered = 0.999F;

std::size_t indexOf(const Coverage& part, int x, int y)
{
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(part.width)
        + static_cast<std::size_t>(x);
}

} // namespace

EdgeDistance::EdgeDistance(const Coverage& part, int reach)
    : m_part(part)
    , m_reach(reach)
{
    const std::size_t count = indexOf(part, 0, part.height);
    m_nearest.along.resize(count);
    m_nearest.offset.resize(count);
    for (int y = 0; y < part.height; ++y)
        measureRow(y);
}

const float* EdgeDistance::rowOf(int y) const { return m_part.samples + indexOf(m_part, 0, y); }

/// The pixels of a row that the edge is measured from.
std::vector<bool> EdgeDistance::anchorsOf(int y) const
{
    const int last = m_part.width - 1;
    const float* row = rowOf(y);
    const float* above = y > 0 ? rowOf(y - 1) : nullptr;
    const float* below = y + 1 < m_part.height ? rowOf(y + 1) : nullptr;
    std::vector<bool> anchors(static_cast<std::size_t>(m_part.width));
    for (int x = 0; x <= last; ++x) {
        const auto isBesideOutside = [&] {
            return x == 0 || x == last || row[x - 1] < half || row[x + 1] < half || above == nullptr
                || above[x] < half || below == nullptr || below[x] < half;
        };
        anchors[static_cast<std::size_t>(x)]
            = row[x] < half || (row[x] < fullyCovered && isBesideOutside());
    }
    return anchors;
}

void EdgeDistance::measureRow(int y)
{
    const float* row = rowOf(y);
    float* along = m_nearest.along.data() + indexOf(m_part, 0, y);
    float* offset = m_nearest.offset.data() + indexOf(m_part, 0, y);
    const std::vector<bool> anchors = anchorsOf(y);
    float distance = 0;
    float toEdge = -half; // what lies beside the picture is outside
    for (int x = 0; x < m_part.width; ++x) {
        distance += 1;
        if (anchors[static_cast<std::size_t>(x)]) {
            distance = 0;
            toEdge = row[x] - half;
        }
        along[x] = distance;
        offset[x] = toEdge;
    }
    distance = 0;
    toEdge = -half;
    for (int x = m_part.width - 1; x >= 0; --x) {
        distance += 1;
        if (anchors[static_cast<std::size_t>(x)]) {
            distance = 0;
            toEdge = row[x] - half;
        }
        if (distance + toEdge < along[x] + offset[x]) {
            along[x] = distance;
            offset[x] = toEdge;
        }
    }
}

std::vector<float> EdgeDistance::ofRow(int y) const
{
    std::vector<float> distances(static_cast<std::size_t>(m_part.width), -half);
    const float* row = rowOf(y);
    int begin = 0;
    while (begin < m_part.width) {
        int end = begin;
        while (end < m_part.width && row[end] >= half)
            ++end;
        if (begin < end)
            measureRun({.y = y, .begin = begin, .end = end}, distances.data());
        begin = end + 1;
    }
    return distances;
}

void EdgeDistance::measureRun(const Run& run, float* distances) const
{
    std::fill(distances + run.begin, distances + run.end, static_cast<float>(m_reach));
    keepNearer(run, 0, distances);
    for (int rows = 1; rows <= m_reach; ++rows) {
        keepNearer(run, -rows, distances);
        keepNearer(run, rows, distances);
    }
}

void EdgeDistance::keepNearer(const Run& run, int rows, float* distances) const
{
    const auto away = static_cast<float>(std::abs(rows));
    const int y = run.y + rows;
    if (y < 0 || y >= m_part.height) {
        for (int x = run.begin; x < run.end; ++x)
            distances[x] = std::min(distances[x], away - half);
        return;
    }
    const float* along = m_nearest.along.data() + indexOf(m_part, 0, y);
    const float* offset = m_nearest.offset.data() + indexOf(m_part, 0, y);
    for (int x = run.begin; x < run.end; ++x) {
        const float squared = along[x] * along[x] + away * away;
        const float farthest = distances[x] + half; // from where the edge can still be nearer
        if (squared < farthest * farthest)
            distances[x] = std::min(distances[x], std::sqrt(squared) + offset[x]);
    }
}

} // namespace brenvaldo::platform::drawing
