// SPDX-License-Identifier: GPL-3.0-or-later
#include "landscape.h"

#include <algorithm>

namespace brenvaldo::examples {

namespace {

/// A fast sequence of random bits (xorshift, 64 bits of state).
class Bits
{
public:
    explicit Bits(quint32 seed)
        : m_state(0x9E3779B97F4A7C15ULL ^ (quint64(seed) << 17))
    {
    }

    quint64 next()
    {
        m_state ^= m_state << 13;
        m_state ^= m_state >> 7;
        m_state ^= m_state << 17;
        return m_state;
    }

private:
    quint64 m_state;
};

/// `level` with the noise that the lowest 16 of `bits` make: a triangle of about 4 levels'
/// deviation.
int noisy(int level, quint64 bits)
{
    const int spread = static_cast<int>(bits & 0xFF) - static_cast<int>((bits >> 8) & 0xFF);
    return std::clamp(level + spread / 18, 0, 255);
}

} // namespace

void addSensorNoise(QImage& picture, quint32 variation)
{
    Bits bits(variation);
    for (int y = 0; y < picture.height(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(picture.scanLine(y));
        for (int x = 0; x < picture.width(); ++x) {
            const quint64 random = bits.next();
            row[x] = qRgb(
                noisy(qRed(row[x]), random),
                noisy(qGreen(row[x]), random >> 16),
                noisy(qBlue(row[x]), random >> 32)
            );
        }
    }
}

} // namespace brenvaldo::examples
