// SPDX-License-Identifier: GPL-3.0-or-later
#include "search_attributes.h"

#include "file_handling.h"
#include "named_row.h"
#include "ns_string_handling.h"
#include "photo_attributes.h"

#include <platform/foundation/literals.h>
#include <platform/foundation/paths.h>
#include <platform/storage/file_label.h>
#include <platform/storage/file_system.h>

#include <QFileInfo>
#include <QMimeDatabase>

#include <array>

namespace brenvaldo::files {

namespace {

using platform::metadata::PropertyValue;
using platform::storage::FileAttributes;
using Value = std::optional<PropertyValue>;

QString dateText(const QDateTime& date) { return cNSStringHandling::hNSDateToNSString(date); }

Value dateOf(const QString& path, QDateTime FileAttributes::*date)
{
    const auto attributes = platform::storage::fileAttributes(path);
    return attributes ? Value(dateText((*attributes).*date)) : std::nullopt;
}

Value modificationDate(const QString& path)
{
    return dateOf(path, &FileAttributes::modificationDate);
}

Value creationDate(const QString& path) { return dateOf(path, &FileAttributes::creationDate); }

Value contentCreationDate(const QString& path)
{
    if (const auto taken = exposureDate(path))
        return dateText(*taken);
    return creationDate(path);
}

Value size(const QString& path)
{
    const auto attributes = platform::storage::fileAttributes(path);
    return attributes ? Value(qint64{attributes->size}) : std::nullopt;
}

Value label(const QString& path)
{
    const auto number = platform::storage::fileLabel(path);
    return number ? Value(*number) : std::nullopt;
}

Value entryCount(const QString& path)
{
    if (!platform::storage::isFolder(path))
        return std::nullopt;
    return qint64{
        platform::storage::folderEntries(path, platform::storage::HiddenFiles::Included).size()};
}

Value name(const QString& path) { return platform::lastPathComponent(path); }

Value isHidden(const QString& path)
{
    return platform::lastPathComponent(path).startsWith(u'.') ? 1 : 0;
}

Value zero(const QString& /*path*/) { return 0; }

struct Kind
{
    QLatin1StringView name; ///< type identifier
    QLatin1StringView text;
};

constexpr std::array kinds{
    Kind{QLatin1StringView("public.jpeg"), QLatin1StringView("JPEG image")},
    Kind{QLatin1StringView("public.png"), QLatin1StringView("PNG image")},
    Kind{QLatin1StringView("public.tiff"), QLatin1StringView("TIFF image")},
    Kind{QLatin1StringView("com.compuserve.gif"), QLatin1StringView("GIF image")},
    Kind{QLatin1StringView("com.microsoft.bmp"), QLatin1StringView("Windows BMP image")},
    Kind{QLatin1StringView("public.jp2"), QLatin1StringView("JPEG 2000 image")},
    Kind{QLatin1StringView("public.heic"), QLatin1StringView("HEIF Image")},
    Kind{QLatin1StringView("public.heif"), QLatin1StringView("HEIF Image")},
    Kind{QLatin1StringView("org.webmproject.webp"), QLatin1StringView("WebP Image")},
    Kind{QLatin1StringView("com.adobe.photoshop-image"), QLatin1StringView("Adobe Photoshop file")},
    Kind{QLatin1StringView("com.adobe.pdf"), QLatin1StringView("PDF Document")},
    Kind{QLatin1StringView("public.svg-image"), QLatin1StringView("SVG document")},
    Kind{QLatin1StringView("public.plain-text"), QLatin1StringView("Plain Text Document")},
    Kind{QLatin1StringView("public.html"), QLatin1StringView("HTML text")},
};

Value kindOf(const QString& path)
{
    if (platform::storage::isFolder(path))
        return u"Folder"_s;
    if (const Kind* known = rowNamed(kinds, cNSFileHandling::hGetFileType(path)))
        return QString(known->text);
    return QMimeDatabase().mimeTypeForFile(path).comment();
}

Value typeOf(const QString& path) { return cNSFileHandling::hGetFileType(path); }

struct FileAttribute
{
    QLatin1StringView name;
    Value (*read)(const QString& path);
};

/// Attributes that other platforms keep and no file here has, such as type codes, have no row.
constexpr std::array fileAttributes{
    FileAttribute{QLatin1StringView("ContentCreationDate"), contentCreationDate},
    FileAttribute{QLatin1StringView("ContentModificationDate"), modificationDate},
    FileAttribute{QLatin1StringView("ContentType"), typeOf},
    FileAttribute{QLatin1StringView("DisplayName"), name},
    FileAttribute{QLatin1StringView("FSContentChangeDate"), modificationDate},
    FileAttribute{QLatin1StringView("FSCreationDate"), creationDate},
    FileAttribute{QLatin1StringView("FSFinderFlags"), zero},
    FileAttribute{QLatin1StringView("FSInvisible"), isHidden},
    FileAttribute{QLatin1StringView("FSIsExtensionHidden"), zero},
    FileAttribute{QLatin1StringView("FSLabel"), label},
    FileAttribute{QLatin1StringView("FSName"), name},
    FileAttribute{QLatin1StringView("FSNodeCount"), entryCount},
    FileAttribute{
        QLatin1StringView("FSOwnerGroupID"),
        [](const QString& path) -> Value { return qint64{QFileInfo(path).groupId()}; }},
    FileAttribute{
        QLatin1StringView("FSOwnerUserID"),
        [](const QString& path) -> Value { return qint64{QFileInfo(path).ownerId()}; }},
    FileAttribute{QLatin1StringView("FSSize"), size},
    FileAttribute{QLatin1StringView("Kind"), kindOf},
};

} // namespace

std::optional<QString> searchAttribute(const QString& path, const QString& name)
{
    if (!platform::storage::fileExists(path))
        return std::nullopt;
    const FileAttribute* row = rowNamed(fileAttributes, name);
    const Value value = row ? row->read(path) : photoAttribute(path, name);
    return value ? std::optional(value->text()) : std::nullopt;
}

} // namespace brenvaldo::files
