// SPDX-License-Identifier: GPL-3.0-or-later
#include "rotate_rules.h"

#include <platform/foundation/numbers.h>

#include <algorithm>
#include <cmath>

namespace brenvaldo::imaging {

using platform::truncated;
using platform::graphics::PixelSize;

namespace {

constexpr double radiansPerDegree = 0.017453292519943295;
constexpr double noiseOfPoints = 1e-6;

double extent(double first, double second)
{
    // The four corners, one of them the origin, projected on an axis.
    const auto [low, high] = std::minmax({0.0, first, second, first + second});
    return high - low;
}

} // namespace

QSizeF boundsOfTurned(const QSizeF& size, double degrees)
{
    const double radians = degrees * radiansPerDegree;
    const double cosine = std::cos(radians);
    const double sine = std::sin(radians);
    return {
        extent(size.width() * cosine, -size.height() * sine),
        extent(size.width() * sine, size.height() * cosine),
    };
}

PixelSize turnedCanvas(PixelSize photo, double degrees)
{
    const QSizeF bounds = boundsOfTurned(QSizeF(photo.width, photo.height), degrees);
    return {truncated(bounds.width()), truncated(bounds.height())};
}

std::optional<QuarterTurns> quarterTurns(double degrees)
{
    const double remainder = std::fmod(degrees, 360.0);
    const double turn = remainder < 0 ? remainder + 360.0 : remainder;
    if (turn == 0)
        return QuarterTurns::None;
    if (turn == 90)
        return QuarterTurns::One;
    if (turn == 180)
        return QuarterTurns::Two;
    if (turn == 270)
        return QuarterTurns::Three;
    return std::nullopt;
}

PixelSize canvasOfPoints(const QSizeF& points)
{
    return {
        truncated(std::ceil(points.width() - noiseOfPoints)),
        truncated(std::ceil(points.height() - noiseOfPoints)),
    };
}

} // namespace brenvaldo::imaging
