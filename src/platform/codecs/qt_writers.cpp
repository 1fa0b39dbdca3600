// SPDX-License-Identifier: GPL-3.0-or-later
#include "encoders.h"

#include <platform/graphics/qt_pixels.h>

#include <QImageWriter>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>

namespace brenvaldo::platform::codecs {

void encodeBmp(const graphics::ImageNode& node, OutputFile& file)
{
    const QImage image
        = graphics::evaluatedQImage(fittedTo(node, {.alpha = AlphaSupport::Flattens}));
    QImageWriter writer(&file, "bmp");
    if (!writer.write(image))
        throw vips::VError("the bitmap can't be written");
}

void encodePdf(const graphics::ImageNode& node, OutputFile& file)
{
    constexpr double pointsPerInch = 72;
    const QImage image
        = graphics::evaluatedQImage(fittedTo(node, {.alpha = AlphaSupport::Flattens}));
    const QSizeF points = QSizeF(image.size()) * pointsPerInch / node.dotsPerInch;
    QPdfWriter writer(&file);
    writer.setPageSize(QPageSize(points, QPageSize::Point, {}, QPageSize::ExactMatch));
    writer.setPageMargins({});
    QPainter painter;
    if (!painter.begin(&writer))
        throw vips::VError("the page can't be drawn");
    painter.drawImage(QRectF(0, 0, writer.width(), writer.height()), image);
    if (!painter.end())
        throw vips::VError("the page can't be drawn");
}

} // namespace brenvaldo::platform::codecs
