// SPDX-License-Identifier: GPL-3.0-or-later
#include "image_destination.h"

#include "encoders.h"
#include "evaluation.h"

#include <platform/foundation/log.h>

namespace brenvaldo::platform {

namespace {

void encodeAs(
    const ImageNode& node, FileFormat format, const EncodeOptions& options, OutputFile& file
)
{
    switch (format) {
    case FileFormat::Png:
        return encodePng(node, file);
    case FileFormat::Tiff:
        return encodeTiff(node, file);
    case FileFormat::Jpeg:
        return encodeJpeg(node, options.lossyQuality, file);
    case FileFormat::Gif:
        return encodeGif(node, file);
    case FileFormat::Jpeg2000:
        return encodeJpeg2000(node, file);
    case FileFormat::Heic:
        return encodeHeic(node, options.blocks, file);
    case FileFormat::Bmp:
        return encodeBmp(node, file);
    case FileFormat::Pdf:
        return encodePdf(node, file);
    }
}

} // namespace

bool encode(
    const Image& image, FileFormat format, const EncodeOptions& options, const QString& path
)
{
    vips_error_clear();
    OutputFile file(path);
    try {
        evaluate(image.node()->pixels, [&](const vips::VImage& watched) {
            if (file.isWhole())
                encodeAs(image.node()->withPixels(watched), format, options, file);
        });
        // What the encoders themselves say of refused bytes can't be trusted.
        if (!file.finish())
            throw vips::VError(file.fault().toStdString());
        return true;
    } catch (const std::exception& error) {
        const QString reason = file.isWhole() ? faultText(error) : file.fault();
        log(QStringLiteral("Failed to encode a picture: ") + reason);
        return false;
    }
}

} // namespace brenvaldo::platform
