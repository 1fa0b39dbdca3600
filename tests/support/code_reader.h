// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QImage>

#include <string>

#include <zbar.h>

namespace brenvaldo::test {

/// What a reader of codes finds in the picture: the first message; empty when there is none.
inline QByteArray readCode(const QImage& picture)
{
    QImage grey = picture.convertToFormat(QImage::Format_Grayscale8);
    QByteArray samples;
    for (int y = 0; y < grey.height(); ++y)
        samples.append(reinterpret_cast<const char*>(grey.constScanLine(y)), grey.width());
    zbar::ImageScanner scanner;
    scanner.set_config(zbar::ZBAR_NONE, zbar::ZBAR_CFG_ENABLE, 1);
    scanner.set_config(zbar::ZBAR_QRCODE, zbar::ZBAR_CFG_BINARY, 1);
    zbar::Image image(
        static_cast<unsigned>(grey.width()),
        static_cast<unsigned>(grey.height()),
        "Y800",
        samples.constData(),
        static_cast<unsigned long>(samples.size())
    );
    if (scanner.scan(image) < 1)
        return {};
    const std::string message = image.symbol_begin()->get_data();
    return QByteArray(message.data(), static_cast<qsizetype>(message.size()));
}

} // namespace brenvaldo::test
