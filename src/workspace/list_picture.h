// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/graphics/image.h>

#include <QString>

namespace brenvaldo::workspace {

/// The small picture of an entry of the photo list. It is made when it is drawn.
struct ListPicture
{
    enum class Kind {
        Thumbnail, ///< the photo in a box
        FullPicture, ///< the photo itself
        Generic ///< the sign of a file that is no photo
    };

    Kind kind = Kind::Thumbnail;
    QString path;

    friend bool operator==(const ListPicture&, const ListPicture&) = default;
};

/// Side of the box of a thumbnail, in points.
inline constexpr int thumbnailSide = 94;

/// Size at which a picture fits a box of `side` by `side` pixels with its proportions kept; at
/// least one pixel a side, invalid for an invalid size.
[[nodiscard]] platform::graphics::PixelSize
thumbnailSize(platform::graphics::PixelSize picture, int side = thumbnailSide);

/// `image` drawn into a new picture of exactly `size`, 8-bit RGB with alpha; nothing for a damaged
/// image or an invalid size.
[[nodiscard]] std::optional<platform::graphics::Image> resizedImagetoPixelDimensions(
    const platform::graphics::Image& image, platform::graphics::PixelSize size
);

/// What is drawn for `picture` in a square of `side` pixels; nothing when the photo can't be read,
/// and for the sign of a file. Safe from any thread.
[[nodiscard]] std::optional<platform::graphics::Image>
drawnPicture(const ListPicture& picture, int side);

} // namespace brenvaldo::workspace
