// SPDX-License-Identifier: GPL-3.0-or-later
#include "encoders.h"
#include "qt_pixels.h"

#include <QFile>
#include <QImageWriter>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>

namespace brenvaldo::platform {

namespace {

void openForWriting(QFile& file)
{
    if (!file.open(QIODevice::WriteOnly))
        throw vips::VError("the file can't be written");
}

/// Throws when bytes of a finished file did not reach it.
void checkWritten(QFile& file)
{
    if (!file.flush() || file.error() != QFileDevice::NoError)
        throw vips::VError("the file can't be written");
}

} // namespace

void encodeBmp(const ImageNode& node, const QString& path)
{
    const QImage image = evaluatedQImage(fittedTo(node, {.alpha = AlphaSupport::Flattens}));
    QFile file(path);
    openForWriting(file);
    QImageWriter writer(&file, "bmp");
    if (!writer.write(image))
        throw vips::VError("the bitmap can't be written");
    checkWritten(file);
}

void encodePdf(const ImageNode& node, const QString& path)
{
    constexpr double pointsPerInch = 72;
    const QImage image = evaluatedQImage(fittedTo(node, {.alpha = AlphaSupport::Flattens}));
    const QSizeF points = QSizeF(image.size()) * pointsPerInch / node.dotsPerInch;
    QFile file(path);
    openForWriting(file);
    QPdfWriter writer(&file);
    writer.setPageSize(QPageSize(points, QPageSize::Point, {}, QPageSize::ExactMatch));
    writer.setPageMargins({});
    QPainter painter;
    if (!painter.begin(&writer))
        throw vips::VError("the page can't be drawn");
    painter.drawImage(QRectF(0, 0, writer.width(), writer.height()), image);
    if (!painter.end())
        throw vips::VError("the page can't be drawn");
    checkWritten(file);
}

} // namespace brenvaldo::platform
