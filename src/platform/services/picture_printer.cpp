// SPDX-License-Identifier: GPL-3.0-or-later
#include "picture_printer.h"

#include <QPageLayout>
#include <QPainter>
#include <QPrinter>

namespace brenvaldo::platform::services {

void prepareFullPage(QPrinter& printer, const QSize& picture)
{
    const bool isWide = picture.width() > picture.height();
    printer.setFullPage(true);
    printer.setPageOrientation(isWide ? QPageLayout::Landscape : QPageLayout::Portrait);
    printer.setPageMargins(QMarginsF(0, 0, 0, 0));
}

QRectF placeOnPage(const QSizeF& picture, const QSizeF& page)
{
    QRectF place(QPointF(0, 0), picture.scaled(page, Qt::KeepAspectRatio));
    place.moveCenter(QRectF(QPointF(0, 0), page).center());
    return place;
}

void drawOnPage(QPrinter& printer, const QImage& picture)
{
    QPainter painter(&printer);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QSizeF page(printer.width(), printer.height());
    painter.drawImage(placeOnPage(picture.size(), page), picture);
}

} // namespace brenvaldo::platform::services
