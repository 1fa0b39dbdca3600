// SPDX-License-Identifier: GPL-3.0-or-later
#include "list_entry.h"

#include <imaging/dv_image_handling.h>
#include <platform/foundation/literals.h>
#include <platform/foundation/paths.h>

#include <platform/codecs/image_source.h>

#include <QFileInfo>

namespace brenvaldo::workspace {

namespace {

struct FileSizes
{
    platform::graphics::PixelSize stored;
    platform::graphics::PixelSize upright;
};

FileSizes sizesOf(const QString& path)
{
    const auto source = platform::codecs::ImageSource::open(path);
    if (!source)
        return {};
    return {.stored = source->header().storedSize, .upright = source->header().uprightSize};
}

QString pixelText(int pixels) { return pixels == 0 ? QString() : QString::number(pixels); }

bool hasImageExtension(const QString& path)
{
    static const QStringList imageExtensions{
        u"bmp"_s, u"gif"_s, u"png"_s, u"jpg"_s, u"jpeg"_s, u"tif"_s, u"tiff"_s, u"heic"_s};
    return imageExtensions.contains(platform::pathExtension(path).toLower());
}

cCollectionViewItem namedEntry(const QString& path)
{
    cCollectionViewItem entry;
    entry.myPhotoName = platform::lastPathComponent(path);
    entry.myPhotoDescription = path;
    return entry;
}

cCollectionViewItem measuredEntry(const QString& path, platform::graphics::PixelSize size)
{
    cCollectionViewItem entry = namedEntry(path);
    entry.myPhotoOrientation = orientationLetter(size);
    entry.myPhotoPxSize = sizeText(size, QFileInfo(path).size());
    return entry;
}

ListPicture thumbnail(const QString& path)
{
    return {.kind = ListPicture::Kind::Thumbnail, .path = path};
}

ListPicture fullPicture(const QString& path)
{
    return {.kind = ListPicture::Kind::FullPicture, .path = path};
}

} // namespace

QString orientationLetter(platform::graphics::PixelSize size)
{
    if (size.width == size.height)
        return u"S"_s;
    return size.width > size.height ? u"L"_s : u"P"_s;
}

QString sizeText(platform::graphics::PixelSize size, qint64 bytes)
{
    return pixelText(size.width) + u'x' + pixelText(size.height) + u"px | "_s
        + imaging::DVImageHandling::hNSFileSizeToHumanNotification(static_cast<double>(bytes));
}

cCollectionViewItem chosenEntry(const QString& path)
{
    cCollectionViewItem entry = measuredEntry(path, sizesOf(path).upright);
    entry.myPhotoURL = QUrl::fromLocalFile(path);
    entry.myPhoto = thumbnail(path);
    return entry;
}

cCollectionViewItem renameEntry(const QString& path)
{
    cCollectionViewItem entry = namedEntry(path);
    entry.myPhotoURL = QUrl::fromLocalFile(path);
    entry.myPhotoOrientation = u"S"_s;
    if (hasImageExtension(path)) {
        entry.myPhoto = thumbnail(path);
    } else {
        entry.myPhoto = {.kind = ListPicture::Kind::Generic, .path = path};
        entry.myRenameSelect = 1;
    }
    return entry;
}

cCollectionViewItem droppedEntry(const QString& path)
{
    cCollectionViewItem entry = measuredEntry(path, sizesOf(path).stored);
    entry.myPhoto = thumbnail(path);
    return entry;
}

cCollectionViewItem insertedEntry(const QString& path)
{
    cCollectionViewItem entry = measuredEntry(path, sizesOf(path).stored);
    entry.myPhotoURL = QUrl::fromLocalFile(path);
    entry.myPhoto = fullPicture(path);
    return entry;
}

cCollectionViewItem editedEntry(const QString& path)
{
    cCollectionViewItem entry = measuredEntry(path, sizesOf(path).upright);
    entry.myPhotoURL = QUrl::fromLocalFile(path);
    entry.myPhoto = fullPicture(path);
    return entry;
}

} // namespace brenvaldo::workspace
