// SPDX-License-Identifier: GPL-3.0-or-later
#include "gallery_pictures.h"

#include "failure_log.h"
#include "file_conversion.h"
#include "gallery_size_rules.h"
#include "resize_rules.h"
#include "same_name_copy.h"
#include "writer_rules.h"

#include <platform/codecs/image_source.h>

#include <algorithm>

namespace brenvaldo::imaging {

using platform::codecs::ImageSource;
using platform::graphics::Image;
using platform::graphics::PixelSize;

namespace {

std::optional<PixelSize> targetOf(PixelSize photo, const GalleryPictureSettings& settings)
{
    std::optional<PixelSize> target;
    for (const auto& resize : settings.resizes) {
        const auto size = gallerySize(photo, resize.value, resize.type);
        if (size && givesContext(*size))
            target = size;
    }
    return target;
}

/// What the decoder must keep for pictures of both sizes.
PixelSize larger(std::optional<PixelSize> first, std::optional<PixelSize> second)
{
    const PixelSize a = first.value_or(PixelSize{});
    const PixelSize b = second.value_or(PixelSize{});
    return {std::max(a.width, b.width), std::max(a.height, b.height)};
}

Image pictureOf(
    DVImageHandling& imageHandling,
    const Image& photo,
    PixelSize target,
    const GalleryPictureSettings& settings
)
{
    Image picture = photo.scaledTo(target);
    if (settings.crop) // a cut that lies outside of the picture leaves it whole
        picture = imageHandling.galleryCut(picture, *settings.crop).value_or(picture);
    if (settings.frameThickness == 0)
        return picture;
    return DVImageHandling::withEdgeLine(picture, settings.frameColor, settings.frameThickness);
}

/// Nothing for a type that can be neither read as a photo nor be written.
std::optional<ResultWord> wordWithoutPictures(const QString& path)
{
    const QString type = typeOfExtension(path);
    if (isNotSupported(type))
        return ResultWord::NotSupported;
    if (!writerRule(Writer::WholePath, type))
        return failsForType(path, type);
    return std::nullopt;
}

} // namespace

Outcome galleryPictures(
    DVImageHandling& imageHandling,
    const QString& path,
    const GalleryPictureSettings& thumbnail,
    const GalleryPictureSettings& large
)
{
    if (const auto word = wordWithoutPictures(path))
        return *word;
    const auto source = ImageSource::open(path);
    const PixelSize stored = source ? source->header().storedSize : PixelSize{};
    const auto small = targetOf(stored, thumbnail);
    const auto big = targetOf(stored, large);
    const auto photo = source
        ? source->image({.access = ImageSource::Access::Random, .atLeast = larger(small, big)})
        : std::nullopt;
    if (!photo) {
        logFailedWrite(path, u"it can't be read as a photo"_s);
        return ResultWord::Failed;
    }

    std::optional<PictureToSave> last;
    for (const auto& [target, settings] : {std::pair(small, &thumbnail), std::pair(big, &large)}) {
        if (!target)
            continue;
        auto picture = FileConversion::pictureOfType(
            {.source = path,
             .type = settings->format,
             .compressionLevel = settings->compressionLevel,
             .destination = settings->folder},
            pictureOf(imageHandling, *photo, *target, *settings)
        );
        if (!picture)
            continue;
        if (last)
            picture->before = std::make_shared<const PictureToSave>(*std::move(last));
        last = std::move(picture);
    }
    return last ? Outcome(*std::move(last)) : ResultWord::Ok;
}

ResultWord DVImageHandling::resizeImageResponsiveDesign(
    const QString& path, int value, int type, const QString& folder
)
{
    if (isNotSupported(typeOfExtension(path)))
        return ResultWord::NotSupported;
    const auto source = ImageSource::open(path);
    const PixelSize stored = source ? source->header().storedSize : PixelSize{};
    m_gallerySize = gallerySize(stored, value, type).value_or(m_gallerySize);
    const auto photo = source && givesContext(m_gallerySize)
        ? source->image({.atLeast = m_gallerySize})
        : std::nullopt;
    if (!photo)
        return ResultWord::Ok;
    return saveUnderItsName(photo->scaledTo(m_gallerySize), path, folder);
}

} // namespace brenvaldo::imaging
