// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "caption.h"
#include "gallery_page.h"
#include "stylesheet_values.h"

#include <imaging/gallery_pictures.h>
#include <panels/gallery_panel.h>

#include <QString>

namespace brenvaldo::gallery {

/// What a run reads of the gallery panel.
struct GallerySettings
{
    StylesheetValues stylesheet;
    PageValues page; ///< without the number of pages
    CaptionSettings caption;
    int rows = 1;
    int columns = 1;
    int thumbnailSize = 0; ///< the longer side of a thumbnail, in pixels
    int largeSize = 0; ///< the longer side of a large picture, in pixels
    imaging::GalleryPictureSettings thumbnail; ///< its folder below that of the gallery
    imaging::GalleryPictureSettings large; ///< its folder below that of the gallery
};

/// Rows and columns are at least 1, columns at most 20.
[[nodiscard]] GallerySettings readSettings(const panels::GalleryPanel& panel);

} // namespace brenvaldo::gallery
