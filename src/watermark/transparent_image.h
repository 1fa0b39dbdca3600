// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>

namespace brenvaldo::watermark {

/// An image to draw a layer on, premultiplied, nothing on it yet.
[[nodiscard]] inline QImage transparentImage(const QSize& size)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

} // namespace brenvaldo::watermark
