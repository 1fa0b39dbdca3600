// SPDX-License-Identifier: GPL-3.0-or-later
#include "gallery_size_rules.h"

#include "resize_rules.h"

namespace brenvaldo::imaging {

using platform::graphics::PixelSize;

namespace {

/// A square counts as upright here.
PixelSize withLongerSideAtMost(PixelSize photo, int value)
{
    if (photo.width > photo.height && photo.width > value)
        return maximumTarget(photo, value, MaximumType::Width);
    if (photo.height >= photo.width && photo.height > value)
        return maximumTarget(photo, value, MaximumType::Height);
    return photo;
}

PixelSize withHeightAtMost(PixelSize photo, int value)
{
    return photo.height > value ? maximumTarget(photo, value, MaximumType::Height) : photo;
}

} // namespace

std::optional<PixelSize> gallerySize(PixelSize photo, int value, int type)
{
    switch (type) {
    case 0:
        return maximumTarget(photo, value, MaximumType::Width);
    case 1:
        return maximumTarget(photo, value, MaximumType::Height);
    case 2:
    case 5:
        return maximumTarget(photo, value, MaximumType::LongestSide);
    case 3:
        return maximumTarget(photo, value, MaximumType::Percentage);
    case 4:
        return maximumTarget(
            photo, value, photo.height > photo.width ? MaximumType::Width : MaximumType::Height
        );
    case 6:
        return withLongerSideAtMost(photo, value);
    case 7:
        return withHeightAtMost(photo, value);
    default:
        return std::nullopt;
    }
}

} // namespace brenvaldo::imaging
