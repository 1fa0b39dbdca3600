// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QPainter>

namespace brenvaldo::watermark {

/// An image to draw a layer on, premultiplied, nothing on it yet.
[[nodiscard]] inline QImage transparentImage(const QSize& size)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

/// `layer` at the strength of a drawing fraction.
[[nodiscard]] inline QImage atOpacity(const QImage& layer, double fraction)
{
    QImage image = transparentImage(layer.size());
    if (image.isNull())
        return image;
    QPainter painter(&image);
    painter.setOpacity(fraction);
    painter.drawImage(0, 0, layer);
    return image;
}

} // namespace brenvaldo::watermark
