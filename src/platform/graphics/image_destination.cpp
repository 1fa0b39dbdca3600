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
    case FileFormat::Bmp:
    case FileFormat::Gif:
    case FileFormat::Jpeg2000:
    case FileFormat::Heic:
    case FileFormat::Pdf:
        throw vips::VError("the format is not known");
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
        const QString engineError = takeEngineError();
        const QString reason
            = engineError.isEmpty() ? QString::fromUtf8(error.what()) : engineError;
        log(QStringLiteral("Failed to encode %1: %2").arg(path, reason));
        return false;
    }
}

} // namespace brenvaldo::platform
