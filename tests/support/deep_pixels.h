// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "temporary_folder.h"

#include <platform/codecs/image_destination.h>
#include <platform/foundation/literals.h>

#include <QImage>
#include <QRgba64>

namespace brenvaldo::test {

/// The evaluated samples of a picture of grey or RGB, 16 bits each with straight alpha; 8-bit ones
/// times 257.
inline QImage deepPixels(const platform::graphics::Image& image)
{
    const TemporaryFolder folder;
    const QString path = folder.path(u"pixels.png"_s);
    if (!platform::codecs::encode(image, platform::codecs::FileFormat::Png, {}, path))
        return {};
    return QImage(path).convertToFormat(QImage::Format_RGBA64);
}

/// A pixel of `deepPixels`.
inline QRgba64 deepPixel(const QImage& pixels, int x, int y)
{
    return reinterpret_cast<const QRgba64*>(pixels.constScanLine(y))[x];
}

} // namespace brenvaldo::test
