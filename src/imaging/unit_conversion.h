// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <cstdint>

namespace brenvaldo::imaging {

/// Turns lengths into pixels at the resolution of a photo.
class cMConversion
{
public:
    /// Pixels of `value`, a length in `sourceUnit`, on the photo at `path`.
    ///
    /// Units are "pixel", "mm", "cm", "inch", "pica" and "punt"; any other counts as pixels.
    /// Results are truncated, those of "pica" rounded. A `targetUnit` other than "pixel" computes
    /// nothing and answers the last result again.
    float convertXtoPixel(
        const QString& path, const QString& targetUnit, const QString& sourceUnit, float value
    );

    /// Dots per inch, rounded up; NaN for an unreadable photo.
    [[nodiscard]] static float getPictureDPI(const QString& path);

    /// The last result, in pixels; 0 before the first.
    [[nodiscard]] std::int32_t myNewValue() const { return m_newValue; }

    /// The last resolution read; 0 before the first.
    [[nodiscard]] float myDPIvalue() const { return m_dpiValue; }

private:
    std::int32_t m_newValue = 0;
    float m_dpiValue = 0;
};

} // namespace brenvaldo::imaging
