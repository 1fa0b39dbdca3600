// SPDX-License-Identifier: GPL-3.0-or-later
#include "gallery_folders.h"

#include "gallery_icons.h"

#include <files/file_handling.h>
#include <platform/foundation/literals.h>
#include <platform/storage/hidden_file.h>

#include <QFile>

namespace brenvaldo::gallery {

namespace {

using files::cNSFileHandling;

void createFolder(const QString& path)
{
    cNSFileHandling::hCreateDirectory(path);
    platform::storage::removeAbandonedFiles(path);
    cNSFileHandling::hAddIconToFile(path, icon(u"Brenvaldo_folderIcon2"_s));
}

/// A file that the program carries in itself can only be read: its copy gets the usual permissions.
void copyResource(const QString& name, const QString& folder)
{
    QFile resource(u":/gallery/lightbox/"_s + name);
    QFile copy(folder + name);
    if (!resource.open(QIODevice::ReadOnly) || !copy.open(QIODevice::NewOnly))
        return;
    copy.write(resource.readAll());
}

} // namespace

void hCreateFolderStructure(const QString& destination)
{
    const QString lightbox = destination + u"DVpglightbox/"_s;
    cNSFileHandling::hAddIconToFile(destination, icon(u"Brenvaldo_folderIcon"_s));
    for (const QString& name : {u"DVimages_b/"_s, u"DVimages_s/"_s, u"DVcss/"_s})
        createFolder(destination + name);
    createFolder(lightbox);
    for (const QString& name :
         {u"close.gif"_s,
          u"loading.gif"_s,
          u"BrenvaldoS.png"_s,
          u"overlay.png"_s,
          u"jquery.lightbox.js"_s,
          u"jquery02.lightbox.js"_s,
          u"next.png"_s,
          u"close.png"_s,
          u"previous.png"_s})
        copyResource(name, lightbox);
}

} // namespace brenvaldo::gallery
