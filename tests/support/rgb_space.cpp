// SPDX-License-Identifier: GPL-3.0-or-later
#include "rgb_space.h"

#include <algorithm>
#include <cmath>

namespace brenvaldo::test {

namespace {

using Vector = std::array<double, 3>;
using Matrix = std::array<Vector, 3>; // rows

constexpr RgbSpace::Chromaticity daylight{0.3127, 0.3290};
constexpr Vector whiteOfProfiles{0.9642, 1.0, 0.8249}; // D50

Vector product(const Matrix& matrix, const Vector& vector)
{
    Vector result{};
    for (std::size_t row = 0; row < 3; ++row)
        for (std::size_t i = 0; i < 3; ++i)
            result[row] += matrix[row][i] * vector[i];
    return result;
}

Matrix inverse(const Matrix& m)
{
    const auto cofactor = [&m](std::size_t row, std::size_t column) {
        const std::size_t r1 = (row + 1) % 3;
        const std::size_t r2 = (row + 2) % 3;
        const std::size_t c1 = (column + 1) % 3;
        const std::size_t c2 = (column + 2) % 3;
        return m[r1][c1] * m[r2][c2] - m[r1][c2] * m[r2][c1];
    };
    const double determinant
        = m[0][0] * cofactor(0, 0) + m[0][1] * cofactor(0, 1) + m[0][2] * cofactor(0, 2);
    Matrix result{};
    for (std::size_t row = 0; row < 3; ++row)
        for (std::size_t column = 0; column < 3; ++column)
            result[row][column] = cofactor(column, row) / determinant;
    return result;
}

Vector xyzOf(const RgbSpace::Chromaticity& light)
{
    return {light.x / light.y, 1, (1 - light.x - light.y) / light.y};
}

/// From linear components to XYZ, so that equal parts give the white.
Matrix toXyz(const RgbSpace& space)
{
    Matrix lights{};
    for (std::size_t light = 0; light < 3; ++light) {
        const Vector xyz = xyzOf(space.primaries[light]);
        for (std::size_t row = 0; row < 3; ++row)
            lights[row][light] = xyz[row];
    }
    const Vector strength = product(inverse(lights), xyzOf(daylight));
    for (Vector& row : lights)
        for (std::size_t light = 0; light < 3; ++light)
            row[light] *= strength[light];
    return lights;
}

double decoded(double value, double gamma)
{
    if (gamma > 0)
        return std::pow(value, gamma);
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double encoded(double value, double gamma)
{
    const double light = std::clamp(value, 0.0, 1.0);
    if (gamma > 0)
        return std::pow(light, 1 / gamma);
    return light <= 0.0031308 ? light * 12.92 : 1.055 * std::pow(light, 1 / 2.4) - 0.055;
}

Vector decoded(const Components& color, double gamma)
{
    return {decoded(color[0], gamma), decoded(color[1], gamma), decoded(color[2], gamma)};
}

/// Daylight's XYZ seen under the white of profiles (Bradford).
Vector underWhiteOfProfiles(const Vector& xyz)
{
    constexpr Matrix cones{
        {{0.8951, 0.2664, -0.1614}, {-0.7502, 1.7135, 0.0367}, {0.0389, -0.0685, 1.0296}}};
    const Vector from = product(cones, xyzOf(daylight));
    const Vector to = product(cones, whiteOfProfiles);
    Vector response = product(cones, xyz);
    for (std::size_t i = 0; i < 3; ++i)
        response[i] *= to[i] / from[i];
    return product(inverse(cones), response);
}

} // namespace

Components converted(const Components& color, const RgbSpace& from, const RgbSpace& to)
{
    const Vector xyz = product(toXyz(from), decoded(color, from.gamma));
    const Vector linear = product(inverse(toXyz(to)), xyz);
    return {
        encoded(linear[0], to.gamma), encoded(linear[1], to.gamma), encoded(linear[2], to.gamma)};
}

double grayOf(const Components& color, const RgbSpace& from, double gamma)
{
    const Vector xyz = product(toXyz(from), decoded(color, from.gamma));
    return encoded(underWhiteOfProfiles(xyz)[1], gamma);
}

} // namespace brenvaldo::test
