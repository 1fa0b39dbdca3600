// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QRectF>
#include <QString>

class QPrinter;

namespace brenvaldo::platform::services {

/// Puts pictures on paper.
class PicturePrinter
{
public:
    PicturePrinter() = default;
    PicturePrinter(const PicturePrinter&) = delete;
    PicturePrinter& operator=(const PicturePrinter&) = delete;
    PicturePrinter(PicturePrinter&&) = delete;
    PicturePrinter& operator=(PicturePrinter&&) = delete;
    virtual ~PicturePrinter() = default;

    /// One page with the picture, as large as the page allows; `name` is what the job is called.
    virtual void print(const QImage& picture, const QString& name) = 0;
};

/// Prepares a page for a picture: no margins, upright or across as the picture is.
void prepareFullPage(QPrinter& printer, const QSize& picture);

/// Where a picture stands on a page: fitted, centred, its aspect kept.
[[nodiscard]] QRectF placeOnPage(const QSizeF& picture, const QSizeF& page);

/// Draws the picture on the printer's page.
void drawOnPage(QPrinter& printer, const QImage& picture);

} // namespace brenvaldo::platform::services
