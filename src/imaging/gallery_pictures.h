// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "dv_image_handling.h"

#include <platform/graphics/color.h>

#include <QString>

#include <vector>

namespace brenvaldo::imaging {

/// How one of the two pictures of a photo in a gallery is made.
struct GalleryPictureSettings
{
    struct Resize
    {
        int value = 0;
        int type = 0; ///< of `gallerySize`
    };

    std::vector<Resize> resizes; ///< each of the photo; the last that gives a picture counts
    std::optional<DVImageHandling::GalleryCrop> crop = {};
    platform::graphics::Color frameColor;
    int frameThickness = 0; ///< half of it falls on the picture; 0 draws none
    QString folder; ///< ends in "/"
    QString format; ///< extension word
    QString compressionLevel;
};

/// The thumbnail and the large picture of the photo at `path`, of its stored pixels, which are
/// decoded once for both.
///
/// "Not Supported" for Photoshop and PDF files; "Failed" for types that no writer knows. A picture
/// of no size is left out, and the word is then "OK".
[[nodiscard]] Outcome galleryPictures(
    DVImageHandling& imageHandling,
    const QString& path,
    const GalleryPictureSettings& thumbnail,
    const GalleryPictureSettings& large
);

} // namespace brenvaldo::imaging
