// SPDX-License-Identifier: GPL-3.0-or-later
#include "square_canvas.h"

#include "dv_image_handling.h"
#include "resolution_rules.h"

#include <platform/foundation/numbers.h>
#include <platform/graphics/qt_color.h>

#include <QPainter>

#include <algorithm>

namespace brenvaldo::imaging {

using platform::graphics::Color;
using platform::graphics::Image;

namespace {

constexpr int canvasSide = 1080;
constexpr int framedSide = canvasSide - 50;
constexpr int bandWidth = 100;

/// Makes the longer side `side` pixels; the factor passes through a text of six decimals.
float factorFor(const Image& photo, int side)
{
    const double factor = static_cast<double>(side) / std::max(photo.width(), photo.height());
    return platform::floatValue(QString::number(factor, 'f', 6));
}

/// Where a picture stands so that its middle is that of the canvas; half a pixel that is left over
/// goes to the left and to the bottom.
QPoint topLeftOf(const QImage& picture)
{
    const int left = (canvasSide - picture.width()) / 2;
    const int bottom = (canvasSide - picture.height()) / 2;
    return {left, canvasSide - bottom - picture.height()};
}

/// The canvas with the photo on it, `side` pixels long; null when the photo is damaged.
QImage canvasWith(const Image& photo, int side, const QColor& color)
{
    const auto overlay = DVImageHandling::hScalePictureBase(
        photo.withDotsPerInch(pointsPerInch), factorFor(photo, side)
    );
    const QImage picture = overlay ? overlay->toQImage() : QImage();
    if (picture.isNull())
        return {};
    QImage canvas(canvasSide, canvasSide, QImage::Format_RGB32);
    canvas.fill(color);
    QPainter(&canvas).drawImage(topLeftOf(picture), picture);
    return canvas;
}

void drawBand(QImage& canvas, const QColor& color)
{
    const QRect inside = canvas.rect().adjusted(bandWidth, bandWidth, -bandWidth, -bandWidth);
    QPainter painter(&canvas);
    painter.setClipRegion(QRegion(canvas.rect()) - QRegion(inside));
    painter.fillRect(canvas.rect(), color);
}

std::optional<Image> imageOf(const QImage& canvas, const Image& photo)
{
    if (canvas.isNull())
        return std::nullopt;
    return Image::fromQImage(canvas).withDotsPerInch(photo.dotsPerInch());
}

} // namespace

std::optional<Image> onSquareCanvas(const Image& photo, const Color& color)
{
    return imageOf(canvasWith(photo, canvasSide, qtColor(color.withAlpha(1))), photo);
}

std::optional<Image> onFramedSquareCanvas(const Image& photo, const Color& color)
{
    const QColor opaque = qtColor(color.withAlpha(1));
    QImage canvas = canvasWith(photo, framedSide, opaque);
    if (!canvas.isNull())
        drawBand(canvas, opaque);
    return imageOf(canvas, photo);
}

} // namespace brenvaldo::imaging
