// SPDX-License-Identifier: GPL-3.0-or-later
#include "dv_image_handling.h"

#include "same_name_copy.h"
#include "stored_photo.h"
#include "writer_rules.h"

#include <platform/drawing/dashed_rectangle.h>
#include <platform/foundation/literals.h>

namespace brenvaldo::imaging {

using platform::graphics::Image;
using platform::graphics::PixelSize;

namespace {

CropOffset offsetOf(const CropSettings& settings) { return {settings.xOffset, settings.yOffset}; }

/// The rectangle as a drawing has it, in coordinates of the picture.
QRectF sidesOf(const QPoint& drawnOrigin, PixelSize size, PixelSize photo)
{
    const double bottom = static_cast<double>(photo.height) - drawnOrigin.y();
    return QRectF(drawnOrigin.x(), bottom - size.height, size.width, size.height).normalized();
}

} // namespace

std::optional<Image>
DVImageHandling::cutOut(const Image& photo, const std::optional<QPoint>& origin, PixelSize size)
{
    m_origin = origin.value_or(m_origin);
    return photo.croppedTo(coveredPixels(m_origin, size));
}

Outcome DVImageHandling::hCropPhotos(
    const SourceAndBase& photo, const CropSettings& settings, const OutputTail& tail
)
{
    const auto picture = hNSURLtoCIImage(QUrl::fromLocalFile(photo.source));
    if (!picture)
        return outputPicture(std::nullopt, photo, tail);
    const PixelSize whole = picture->pixelSize();
    const PixelSize size = cropSize(settings, whole);
    const auto origin = cropOrigin(whole, size, settings.anchor, offsetOf(settings));
    return outputPicture(cutOut(*picture, origin, size), photo, tail);
}

std::optional<Image>
DVImageHandling::hCropPhotosPreview(const QString& path, const CropSettings& settings)
{
    const PixelSize photo = hGetImgPixelSize(path);
    if (!photo.isValid())
        return std::nullopt;
    const PixelSize size = cropSize(settings, photo);
    const auto origin = drawnCropOrigin(photo, size, settings.anchor, offsetOf(settings));
    m_origin = origin.value_or(m_origin);
    const float lineWidth = cropOutlineWidth(photo);
    return platform::drawing::pictureOf(
        {.sides = sidesOf(m_origin, size, photo),
         .lineWidth = lineWidth,
         .dashLength = cropDashLength(lineWidth),
         .color = {.red = 1}},
        photo
    );
}

ResultWord
DVImageHandling::cropImage9(const QString& path, const QString& folder, const GalleryCrop& crop)
{
    if (isNotSupported(typeOfExtension(path)))
        return ResultWord::NotSupported;
    if (!isReadableFile(path))
        return ResultWord::Ok;
    const auto photo = hStringToCGImageRef(path);
    if (!photo)
        return saveUnderItsName(std::nullopt, path, folder);
    return saveUnderItsName(galleryCut(*photo, crop), path, folder);
}

std::optional<Image> DVImageHandling::galleryCut(const Image& picture, const GalleryCrop& crop)
{
    const CropOffset& offset
        = crop.kind == u"myCropThumb"_s ? crop.thumbnailOffset : crop.bigOffset;
    const auto origin = cropOrigin(picture.pixelSize(), crop.size, crop.anchor, offset);
    return cutOut(picture, origin, crop.size);
}

} // namespace brenvaldo::imaging
