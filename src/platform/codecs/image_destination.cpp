// SPDX-License-Identifier: GPL-3.0-or-later
#include "image_destination.h"

#include "encoders.h"

#include <platform/foundation/literals.h>
#include <platform/foundation/log.h>
#include <platform/graphics/evaluation.h>

#include <sys/mman.h>
#include <unistd.h>

namespace brenvaldo::platform::codecs {

using graphics::Image;

namespace {

void encodeAs(
    const graphics::ImageNode& node,
    FileFormat format,
    const EncodeOptions& options,
    OutputFile& file
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

bool encodeInto(
    OutputFile& file, const Image& image, FileFormat format, const EncodeOptions& options
)
{
    vips_error_clear();
    try {
        graphics::evaluate(image.node()->pixels, [&](const vips::VImage& watched) {
            if (file.isWhole())
                encodeAs(image.node()->withPixels(watched), format, options, file);
        });
        // What the encoders themselves say of refused bytes can't be trusted.
        if (!file.finish())
            throw vips::VError(file.fault().toStdString());
        return true;
    } catch (const std::exception& error) {
        const QString reason = file.isWhole() ? graphics::faultText(error) : file.fault();
        log(u"Failed to encode a picture: "_s + reason);
        return false;
    }
}

} // namespace

bool encode(
    const Image& image, FileFormat format, const EncodeOptions& options, const QString& path
)
{
    OutputFile file(path);
    return encodeInto(file, image, format, options);
}

bool canEncode(const Image& image, FileFormat format, const EncodeOptions& options)
{
    const int memory = memfd_create("picture", MFD_CLOEXEC);
    if (memory < 0)
        return true; // nothing is known against it
    OutputFile file(u"/proc/self/fd/%1"_s.arg(memory));
    const bool isTaken = encodeInto(file, image, format, options) || !file.isWhole();
    close(memory);
    return isTaken;
}

} // namespace brenvaldo::platform::codecs
