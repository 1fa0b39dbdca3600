// SPDX-License-Identifier: GPL-3.0-or-later
#include "list_picture.h"

#include <platform/codecs/image_source.h>
#include <platform/foundation/numbers.h>

#include <algorithm>

namespace brenvaldo::workspace {

namespace {

int scaled(int length, int other, int side)
{
    const float factor = static_cast<float>(side) / static_cast<float>(other);
    return std::max(1, platform::truncated(static_cast<float>(length) * factor));
}

/// The size of a photo that is drawn itself: a small one is not enlarged.
platform::graphics::PixelSize fullSize(platform::graphics::PixelSize photo, int side)
{
    const bool fits = photo.width <= side && photo.height <= side;
    return fits ? photo : thumbnailSize(photo, side);
}

} // namespace

platform::graphics::PixelSize thumbnailSize(platform::graphics::PixelSize picture, int side)
{
    if (!picture.isValid())
        return {};
    if (picture.width == picture.height)
        return {.width = side, .height = side};
    if (picture.width < picture.height)
        return {.width = scaled(picture.width, picture.height, side), .height = side};
    return {.width = side, .height = scaled(picture.height, picture.width, side)};
}

std::optional<platform::graphics::Image> resizedImagetoPixelDimensions(
    const platform::graphics::Image& image, platform::graphics::PixelSize size
)
{
    if (!size.isValid())
        return std::nullopt;
    const QImage drawn = image.scaledTo(size).toQImage();
    if (drawn.isNull())
        return std::nullopt;
    return platform::graphics::Image::fromQImage(drawn.convertToFormat(QImage::Format_ARGB32));
}

std::optional<platform::graphics::Image> drawnPicture(const ListPicture& picture, int side)
{
    if (picture.kind == ListPicture::Kind::Generic)
        return std::nullopt;
    const auto source = platform::codecs::ImageSource::open(picture.path);
    if (!source)
        return std::nullopt;
    const bool isThumbnail = picture.kind == ListPicture::Kind::Thumbnail;
    const platform::graphics::PixelSize photoSize = source->header().uprightSize;
    const platform::graphics::PixelSize size
        = isThumbnail ? thumbnailSize(photoSize, side) : fullSize(photoSize, side);
    const auto photo = source->uprightImage({.atLeast = size});
    if (!photo)
        return std::nullopt;
    return isThumbnail ? resizedImagetoPixelDimensions(*photo, size) : photo->scaledTo(size);
}

} // namespace brenvaldo::workspace
