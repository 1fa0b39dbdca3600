// SPDX-License-Identifier: GPL-3.0-or-later
#include "dv_image_handling.h"

#include "same_name_copy.h"
#include "stored_photo.h"
#include "turning.h"
#include "writer_rules.h"

namespace brenvaldo::imaging {

using platform::graphics::Image;

std::optional<ResultWord>
DVImageHandling::hRotatePicture(const QString& path, const QString& folder, float angle)
{
    m_storeResult = ResultWord::Failed;
    const auto photo = storedPhoto(path);
    if (!photo)
        return std::nullopt;
    const auto turned = turnedPhoto(*photo, angle, platform::graphics::FreeCorners::Blank);
    m_storeResult = saveUnderItsName(turned, path, folder);
    return m_storeResult;
}

std::optional<ResultWord>
DVImageHandling::hFlipHorizontalPicture(const QString& path, const QString& folder)
{
    return flipPicture(path, folder, Image::Axis::Horizontal);
}

std::optional<ResultWord>
DVImageHandling::hFlipVerticalPicture(const QString& path, const QString& folder)
{
    return flipPicture(path, folder, Image::Axis::Vertical);
}

std::optional<ResultWord>
DVImageHandling::flipPicture(const QString& path, const QString& folder, Image::Axis axis)
{
    m_storeResult = ResultWord::Failed;
    if (isNotSupported(typeOfExtension(path)))
        return ResultWord::NotSupported;
    const auto photo = storedPhoto(path);
    if (!photo)
        return std::nullopt;
    m_storeResult = saveUnderItsName(photo->flipped(axis), path, folder);
    return m_storeResult;
}

std::optional<Image> DVImageHandling::hRotatePictureBase(const Image& image, float angle)
{
    return turnedLayer(image, angle);
}

} // namespace brenvaldo::imaging
