// SPDX-License-Identifier: GPL-3.0-or-later
#include "dv_image_handling.h"

#include "turning.h"
#include "writer_rules.h"

#include <platform/codecs/image_source.h>
#include <platform/containers/type_identifier.h>
#include <platform/foundation/literals.h>
#include <platform/foundation/log.h>
#include <platform/foundation/paths.h>
#include <platform/metadata/metadata_reader.h>

#include <QFileInfo>

namespace brenvaldo::imaging {

using platform::graphics::Image;

namespace {

QString typeOfExtension(const QString& path)
{
    return platform::containers::preferredTypeIdentifier(platform::pathExtension(path));
}

/// The stored pixels of the photo at `path`; the log tells why there are none.
std::optional<Image> storedPhoto(const QString& path)
{
    const QFileInfo file(path);
    if (!file.isFile() || !file.isReadable()) {
        platform::log(u"Image source is NULL."_s);
        return std::nullopt;
    }
    auto image = DVImageHandling::hStringToCGImageRef(path);
    if (!image)
        platform::log(u"Image not created from image source."_s);
    return image;
}

ResultWord
saveEdited(const std::optional<Image>& image, const QString& source, const QString& folder)
{
    return DVImageHandling::hSaveToNewImageFile({
        .destination = folder + platform::lastPathComponent(source),
        .typeIdentifier = typeOfExtension(source),
        .image = image,
        .properties = platform::metadata::readMetadataBlocks(source),
    });
}

} // namespace

std::optional<ResultWord>
DVImageHandling::hRotatePicture(const QString& path, const QString& folder, float angle)
{
    m_storeResult = ResultWord::Failed;
    const auto photo = storedPhoto(path);
    if (!photo)
        return std::nullopt;
    const auto turned = turnedPhoto(*photo, angle, platform::graphics::FreeCorners::Blank);
    m_storeResult = saveEdited(turned, path, folder);
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
    m_storeResult = saveEdited(photo->flipped(axis), path, folder);
    return m_storeResult;
}

std::optional<Image> DVImageHandling::hRotatePictureBase(const Image& image, float angle)
{
    return turnedLayer(image, angle);
}

} // namespace brenvaldo::imaging
