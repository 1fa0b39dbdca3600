// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo_effect.h"

#include <algorithm>
#include <cmath>

namespace brenvaldo::platform {

namespace {

int noirLevel(QRgb pixel)
{
    constexpr double gamma = 1.15;
    constexpr double black = -0.05;
    constexpr double white = 1.05;
    const double mixed = (0.34 * qRed(pixel) + 0.55 * qGreen(pixel) + 0.11 * qBlue(pixel)) / 255;
    const double darkened = std::pow(std::clamp(mixed, 0.0, 1.0), gamma);
    const double curved = darkened + darkened * (1 - darkened) * (2 * darkened - 1);
    const double stretched = std::clamp(black + (white - black) * curved, 0.0, 1.0);
    return static_cast<int>(stretched * 255 + 0.5);
}

} // namespace

QImage photoEffectNoir(const QImage& image)
{
    QImage result = image.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < result.height(); ++y) {
        auto* pixels = reinterpret_cast<QRgb*>(result.scanLine(y));
        for (int x = 0; x < result.width(); ++x) {
            const int level = noirLevel(pixels[x]);
            pixels[x] = qRgba(level, level, level, qAlpha(pixels[x]));
        }
    }
    return result;
}

} // namespace brenvaldo::platform
