// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "photo_library.h"

#include <platform/graphics/geometry.h>
#include <platform/storage/sqlite_connection.h>

#include <QByteArray>
#include <QStringList>

#include <optional>

namespace brenvaldo::platform::services {

/// What the index keeps about an album; its folder stands in that of the library.
struct AlbumRecord
{
    QString id;
    QString title;
    QString folder;
};

/// What the index keeps about a photo; its path is relative to the folder of the library.
struct PhotoRecord
{
    QString id;
    QString file;
    QByteArray sha1; ///< as hexadecimal digits
    qint64 bytes = 0;
    qint64 modified = 0; ///< milliseconds since 1970
    graphics::PixelSize size; ///< not valid: the file is no image that can be read
    QString album; ///< id; empty without one
    metadata::PhotoNote note;
};

/// The index of a photo library: an SQLite file beside the folders of its albums.
class LibraryIndex
{
public:
    /// Opens the file, and makes it when it is missing; nothing when that fails.
    [[nodiscard]] static std::optional<LibraryIndex> open(const QString& path);

    /// Oldest first.
    [[nodiscard]] QList<AlbumRecord> albums() const;
    /// Nothing for an unknown id.
    [[nodiscard]] std::optional<QString> folderOfAlbum(const QString& id) const;
    [[nodiscard]] std::optional<QString> fileOfPhoto(const QString& id) const;

    /// The changes answer false when they could not be made; then nothing has changed.
    [[nodiscard]] bool addAlbum(const AlbumRecord& album) const;
    [[nodiscard]] bool addPhoto(const PhotoRecord& photo) const;
    [[nodiscard]] bool setFavourite(const QString& photo, bool favourite) const;

    /// Why the last change was not made.
    [[nodiscard]] QString fault() const { return m_connection.errorMessage(); }

private:
    explicit LibraryIndex(storage::Connection connection);

    [[nodiscard]] bool run(const QString& statement, const QStringList& values) const;
    [[nodiscard]] std::optional<QString> valueOf(const QString& query, const QString& id) const;
    [[nodiscard]] bool insertPhoto(const PhotoRecord& photo) const;
    [[nodiscard]] bool insertKeywords(const PhotoRecord& photo) const;
    [[nodiscard]] bool joinAlbum(const PhotoRecord& photo) const;

    storage::Connection m_connection;
};

} // namespace brenvaldo::platform::services
