// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <array>

namespace brenvaldo::test {

/// A space of red, green and blue lights with daylight (D65) as its white, by its definition.
struct RgbSpace
{
    struct Chromaticity
    {
        double x = 0;
        double y = 0;
    };

    std::array<Chromaticity, 3> primaries;
    double gamma = 0; ///< 0 stands for the curve of sRGB
};

constexpr RgbSpace srgb{.primaries = {{{0.64, 0.33}, {0.30, 0.60}, {0.15, 0.06}}}};
constexpr RgbSpace adobeRgb{
    .primaries = {{{0.64, 0.33}, {0.21, 0.71}, {0.15, 0.06}}}, .gamma = 563.0 / 256};
constexpr RgbSpace displayP3{.primaries = {{{0.680, 0.320}, {0.265, 0.690}, {0.150, 0.060}}}};

/// Red, green and blue as they are stored, from 0 to 1.
using Components = std::array<double, 3>;

/// The same colour in another space, computed from the chromaticities; clipped to 0 to 1.
[[nodiscard]] Components
converted(const Components& color, const RgbSpace& from, const RgbSpace& to);

/// The lightness of the colour on a scale of grey with that gamma (0: the curve of sRGB), as ICC
/// profiles have it: seen under their white, D50.
[[nodiscard]] double grayOf(const Components& color, const RgbSpace& from, double gamma);

} // namespace brenvaldo::test
