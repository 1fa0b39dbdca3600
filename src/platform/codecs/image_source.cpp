// SPDX-License-Identifier: GPL-3.0-or-later
#include "image_source.h"

#include "photo_decoder.h"
#include "tiff_claim.h"

#include <platform/containers/type_identifier.h>
#include <platform/foundation/files_in_the_making.h>
#include <platform/foundation/literals.h>
#include <platform/foundation/log.h>
#include <platform/graphics/deferred_pixels.h>

#include <algorithm>
#include <functional>
#include <optional>

namespace brenvaldo::platform::codecs {

using graphics::Image;

struct ImageSource::State
{
    QString path;
    std::unique_ptr<const PhotoDecoder> decoder;
};

namespace {

void logFault(const QString& path, const std::exception& error)
{
    log(u"Failed to read image %1: %2"_s.arg(path, graphics::faultText(error)));
}

std::unique_ptr<const PhotoDecoder> openDecoder(const QString& path)
{
    const QString type = containers::typeIdentifierOfContents(path);
    if (type == QLatin1String("public.tiff") && holdsOldJpeg(path)) {
        log(u"Failed to read image %1: JPEG of the old style"_s.arg(path));
        return nullptr;
    }
    if (isStreamedType(type))
        return openStreamedPhoto(path, type);
    if (isHeifType(type))
        return openHeifPhoto(path, type);
    if (type == QLatin1String("com.microsoft.bmp"))
        return openBitmapPhoto(path);
    if (isPsdType(type))
        return openPsdPhoto(path, type);
    if (!type.isEmpty())
        log(u"Failed to read image %1: nothing here reads %2"_s.arg(path, type));
    return nullptr;
}

/// The largest factor that leaves a picture of `full` size at least as large as `atLeast`.
int largestShrink(
    const PhotoDecoder& decoder,
    graphics::PixelSize full,
    const std::optional<graphics::PixelSize>& atLeast
)
{
    if (!atLeast)
        return 1;
    int best = 1;
    for (const int factor : decoder.shrinkFactors()) {
        // A decoder that shrinks rounds the sides down.
        if (full.width / factor >= std::max(atLeast->width, 1)
            && full.height / factor >= std::max(atLeast->height, 1))
            best = factor;
    }
    return best;
}

std::optional<Image> decoded(
    const QString& path,
    ImageSource::Access access,
    const std::function<graphics::ImageNode()>& pixels
)
{
    try {
        const graphics::ImageNode node = pixels();
        if (access == ImageSource::Access::OnePass)
            return graphics::makeImage(node);
        return graphics::makeImage(node.withPixels(graphics::randomAccess(node.pixels)));
    } catch (const std::exception& error) {
        logFault(path, error);
        return std::nullopt;
    }
}

} // namespace

ImageSource::ImageSource(std::shared_ptr<const State> state)
    : m_state(std::move(state))
{
}

std::optional<ImageSource> ImageSource::open(const QString& path)
{
    awaitFile(path);
    vips_error_clear();
    try {
        auto decoder = openDecoder(path);
        if (!decoder)
            return std::nullopt;
        return ImageSource(std::make_shared<const State>(State{path, std::move(decoder)}));
    } catch (const std::exception& error) {
        logFault(path, error);
        return std::nullopt;
    }
}

const QString& ImageSource::path() const { return m_state->path; }

const ImageHeader& ImageSource::header() const { return m_state->decoder->header(); }

std::optional<Image> ImageSource::image(const Request& request) const
{
    const PhotoDecoder& decoder = *m_state->decoder;
    const int shrink = largestShrink(decoder, header().storedSize, request.atLeast);
    return decoded(path(), request.access, [&] { return decoder.storedPixels(shrink); });
}

std::optional<Image> ImageSource::uprightImage(const Request& request) const
{
    const PhotoDecoder& decoder = *m_state->decoder;
    const int shrink = largestShrink(decoder, header().uprightSize, request.atLeast);
    return decoded(path(), request.access, [&] { return decoder.uprightPixels(shrink); });
}

} // namespace brenvaldo::platform::codecs
