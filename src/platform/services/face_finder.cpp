// SPDX-License-Identifier: GPL-3.0-or-later
#include "face_finder.h"

#include "hog_faces.h"

#include <algorithm>
#include <tuple>

namespace brenvaldo::platform::services {

using graphics::PixelRect;
using graphics::PixelSize;

namespace {

/// The detector sees faces from 80 pixels on: 4 % of this side.
constexpr double longSideLookedAt = 2000;
constexpr double largestEnlargement = 4;

double scaleOf(PixelSize size)
{
    return std::min(longSideLookedAt / std::max(size.width, size.height), largestEnlargement);
}

int scaled(int side, double scale) { return std::max(qRound(side * scale), 1); }

QImage grayPicture(const graphics::Image& picture, double scale)
{
    const PixelSize size = {scaled(picture.width(), scale), scaled(picture.height(), scale)};
    if (scale < 1)
        return picture.scaledTo(size).toQImage().convertToFormat(QImage::Format_Grayscale8);
    // Enlarged without overshoot: sharpened edges look like faces.
    return picture.toQImage()
        .convertToFormat(QImage::Format_Grayscale8)
        .scaled(size.width, size.height, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

/// The detector's box begins at the brow: this one has the forehead, too.
QRectF withForehead(const QRect& box)
{
    const double side = box.width();
    return QRectF(box.x(), box.y() - 0.15 * side, side, 1.2 * side);
}

PixelRect insideOf(PixelSize picture, const QRectF& face)
{
    const QRect inside = face.toRect() & QRect(0, 0, picture.width, picture.height);
    return {inside.x(), inside.y(), inside.width(), inside.height()};
}

bool comesFirst(const PixelRect& one, const PixelRect& other)
{
    return std::tie(one.x, one.y) < std::tie(other.x, other.y);
}

} // namespace

std::vector<PixelRect> findFaces(const graphics::Image& picture)
{
    const double scale = scaleOf(picture.pixelSize());
    const QImage gray = grayPicture(picture, scale);
    if (gray.isNull())
        return {};
    std::vector<PixelRect> faces;
    for (const QRect& box : hogFaces(gray)) {
        const QRectF face = withForehead(box);
        const QRectF unscaled(face.topLeft() / scale, face.size() / scale);
        faces.push_back(insideOf(picture.pixelSize(), unscaled));
    }
    std::sort(faces.begin(), faces.end(), comesFirst);
    return faces;
}

} // namespace brenvaldo::platform::services
