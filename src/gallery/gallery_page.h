// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QString>

namespace brenvaldo::gallery {

/// How the pages of a gallery are laid out.
enum class PageModel { Table, Grid };

/// A photo of a gallery.
struct GalleryPicture
{
    QString name; ///< the file's name without its last extension
    QString caption; ///< HTML
};

/// What the pages of a gallery are made of.
struct PageValues
{
    PageModel model = PageModel::Table;
    QString baseName; ///< of the pages
    int pageCount = 0;
    QString pageTitle;
    QString width; ///< of the page's body, in percent
    QString fontFamily; ///< a title of the font pop-up
    QString heading; ///< HTML
    bool showsHeading = false;
    bool showsFileNames = false;
    bool showsMetadata = false;
    bool showsCaptionsInLightbox = false;
    QString thumbnailFormat; ///< the extension of the thumbnails
    QString largeFormat; ///< the extension of the large pictures
    QString productSite = {}; ///< web address without its scheme
};

/// The name of page `number`, from 1: "photos.html", "photos2.html".
[[nodiscard]] QString pageName(const QString& baseName, int number);

/// A whole page with these pictures.
[[nodiscard]] QString galleryPage(const PageValues& values, const QList<GalleryPicture>& pictures);

/// The page that leads to the first page of the gallery.
[[nodiscard]] QString redirectPage(const QString& baseName);

} // namespace brenvaldo::gallery
