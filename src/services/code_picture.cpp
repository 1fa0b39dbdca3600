// SPDX-License-Identifier: GPL-3.0-or-later
#include "code_picture.h"

#include <cmath>

namespace brenvaldo::services {

namespace {

constexpr double pixelsPerPoint = 2;
constexpr double pointsPerInch = 72;
constexpr double mostPixels = 1 << 30;

double pixels(double points) { return std::floor(points * pixelsPerPoint + 0.5); }

} // namespace

std::optional<platform::graphics::Image> codePicture(const QImage& modules, QSizeF points)
{
    const double width = pixels(points.width());
    const double height = pixels(points.height());
    if (!(width >= 1) || !(height >= 1) || width * height > mostPixels)
        return std::nullopt;
    const QImage picture = modules.scaled(
        static_cast<int>(width),
        static_cast<int>(height),
        Qt::IgnoreAspectRatio,
        Qt::FastTransformation
    );
    if (picture.isNull())
        return std::nullopt;
    return platform::graphics::Image::fromQImage(picture).withDotsPerInch(
        pointsPerInch * pixelsPerPoint
    );
}

} // namespace brenvaldo::services
