// SPDX-License-Identifier: GPL-3.0-or-later
#include "resolution_rules.h"

#include <cmath>

namespace brenvaldo::imaging {

namespace {

float roundedUp(double value) { return std::ceil(static_cast<float>(value)); }

} // namespace

float dotsPerInchRoundedUp(int pixelsWide, double pointsWide)
{
    return roundedUp(pixelsWide * pointsPerInch / pointsWide);
}

QSizeF exactPoints(platform::graphics::PixelSize pixels, double dotsPerInch)
{
    return {
        pixels.width * pointsPerInch / dotsPerInch, pixels.height * pointsPerInch / dotsPerInch};
}

QSizeF pointsAtResolution(platform::graphics::PixelSize pixels, double dotsPerInch)
{
    const QSizeF exact = exactPoints(pixels, dotsPerInch);
    return {roundedUp(exact.width()), roundedUp(exact.height())};
}

} // namespace brenvaldo::imaging
