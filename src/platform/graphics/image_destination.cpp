// SPDX-License-Identifier: GPL-3.0-or-later
#include "image_destination.h"

#include "encoders.h"

#include <platform/foundation/log.h>

namespace brenvaldo::platform {

namespace {

void encodeAs(
    const ImageNode& node, FileFormat format, const EncodeOptions& options, const QString& path
)
{
    switch (format) {
    case FileFormat::Png:
        return encodePng(node, path);
    case FileFormat::Tiff:
        return encodeTiff(node, path);
    case FileFormat::Jpeg:
        return encodeJpeg(node, options.lossyQuality, path);
    case FileFormat::Gif:
        return encodeGif(node, path);
    case FileFormat::Jpeg2000:
        return encodeJpeg2000(node, path);
    case FileFormat::Heic:
        return encodeHeic(node, options.blocks, path);
    case FileFormat::Bmp:
        return encodeBmp(node, path);
    case FileFormat::Pdf:
        return encodePdf(node, path);
    }
}

} // namespace

bool encode(
    const Image& image, FileFormat format, const EncodeOptions& options, const QString& path
)
{
    vips_error_clear();
    try {
        encodeAs(*image.node(), format, options, path);
        return true;
    } catch (const vips::VError& error) {
        log(QStringLiteral("Failed to encode %1: %2").arg(path, faultText(error)));
        return false;
    }
}

} // namespace brenvaldo::platform
