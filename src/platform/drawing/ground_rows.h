// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QtGlobal>

#include <algorithm>
#include <array>
#include <limits>
#include <vector>

namespace brenvaldo::platform::drawing {

/// Fills translucent pixels up with the colour below them.
template <class Sample>
class GroundRows
{
public:
    /// `ground` are the samples of the colour, without an alpha.
    explicit GroundRows(const std::vector<double>& ground)
        : m_colors(static_cast<int>(ground.size()))
    {
        std::transform(ground.begin(), ground.end(), m_ground.begin(), [](double sample) {
            return static_cast<quint32>(sample);
        });
    }

    /// The pixels have an alpha behind the colours.
    void fillUp(Sample* pixels, int count) const
    {
        const int alpha = m_colors; // pixels could be anything, this for one
        for (int i = 0; i < count; ++i, pixels += alpha + 1) {
            if (pixels[alpha] != full)
                fillUp(pixels);
        }
    }

private:
    static constexpr quint32 full = std::numeric_limits<Sample>::max();

    void fillUp(Sample* pixel) const
    {
        const quint32 alpha = pixel[m_colors];
        for (int band = 0; band < m_colors; ++band) {
            const quint32 below = m_ground[static_cast<std::size_t>(band)];
            const quint32 sum = pixel[band] * alpha + below * (full - alpha) + full / 2;
            pixel[band] = static_cast<Sample>(sum / full);
        }
        pixel[m_colors] = full;
    }

    std::array<quint32, 4> m_ground = {};
    int m_colors;
};

} // namespace brenvaldo::platform::drawing
