// SPDX-License-Identifier: GPL-3.0-or-later
#include "library_index.h"

#include <platform/foundation/literals.h>

#include <QDateTime>

#include <utility>

namespace brenvaldo::platform::services {

using storage::Connection;
using storage::Statement;

namespace {

QString schema()
{
    return uR"(
PRAGMA journal_mode=WAL;
PRAGMA foreign_keys=ON;
PRAGMA user_version=1;
CREATE TABLE IF NOT EXISTS album(
  id TEXT PRIMARY KEY, title TEXT NOT NULL, folder TEXT NOT NULL UNIQUE, created TEXT NOT NULL);
CREATE INDEX IF NOT EXISTS album_title ON album(title);
CREATE TABLE IF NOT EXISTS asset(
  id TEXT PRIMARY KEY, file TEXT NOT NULL UNIQUE, sha1 TEXT NOT NULL, bytes INTEGER NOT NULL,
  mtime INTEGER NOT NULL, width INTEGER, height INTEGER,
  favourite INTEGER NOT NULL DEFAULT 0 CHECK(favourite IN(0,1)),
  title TEXT, caption TEXT, added TEXT NOT NULL);
CREATE INDEX IF NOT EXISTS asset_sha1 ON asset(sha1);
CREATE TABLE IF NOT EXISTS album_asset(
  album TEXT NOT NULL REFERENCES album(id) ON DELETE CASCADE,
  asset TEXT NOT NULL REFERENCES asset(id) ON DELETE CASCADE,
  position INTEGER NOT NULL, PRIMARY KEY(album, asset)) WITHOUT ROWID;
CREATE TABLE IF NOT EXISTS keyword(
  asset TEXT NOT NULL REFERENCES asset(id) ON DELETE CASCADE,
  word TEXT NOT NULL, PRIMARY KEY(asset, word)) WITHOUT ROWID;
)"_s;
}

QString now() { return QDateTime::currentDateTimeUtc().toString(Qt::ISODate); }

/// A null text for nothing: it is kept as "no value".
QString orNull(int side) { return side > 0 ? QString::number(side) : QString(); }

} // namespace

LibraryIndex::LibraryIndex(Connection connection)
    : m_connection(std::move(connection))
{
}

std::optional<LibraryIndex> LibraryIndex::open(const QString& path)
{
    auto connection = Connection::open(path);
    if (!connection || !connection->execute(schema()))
        return std::nullopt;
    return LibraryIndex(std::move(*connection));
}

QList<AlbumRecord> LibraryIndex::albums() const
{
    QList<AlbumRecord> albums;
    const auto rows = m_connection.prepare(u"SELECT id, title, folder FROM album ORDER BY rowid"_s);
    while (rows && rows->step() == Statement::Step::Row)
        albums.append(
            {.id = rows->text(0).value_or(QString()),
             .title = rows->text(1).value_or(QString()),
             .folder = rows->text(2).value_or(QString())}
        );
    return albums;
}

std::optional<QString> LibraryIndex::folderOfAlbum(const QString& id) const
{
    return valueOf(u"SELECT folder FROM album WHERE id = ?"_s, id);
}

std::optional<QString> LibraryIndex::fileOfPhoto(const QString& id) const
{
    return valueOf(u"SELECT file FROM asset WHERE id = ?"_s, id);
}

bool LibraryIndex::addAlbum(const AlbumRecord& album) const
{
    return run(
        u"INSERT INTO album VALUES(?, ?, ?, ?)"_s,
        {album.id, album.title.isNull() ? u""_s : album.title, album.folder, now()}
    );
}

bool LibraryIndex::addPhoto(const PhotoRecord& photo) const
{
    if (!m_connection.execute(u"BEGIN IMMEDIATE"_s))
        return false;
    const bool isWhole = insertPhoto(photo) && insertKeywords(photo) && joinAlbum(photo)
        && m_connection.execute(u"COMMIT"_s);
    if (!isWhole)
        (void)m_connection.execute(u"ROLLBACK"_s);
    return isWhole;
}

bool LibraryIndex::setFavourite(const QString& photo, bool favourite) const
{
    return run(
        u"UPDATE asset SET favourite = ? WHERE id = ?"_s, {favourite ? u"1"_s : u"0"_s, photo}
    );
}

bool LibraryIndex::insertPhoto(const PhotoRecord& photo) const
{
    const auto orNone = [](const QString& text) { return text.isEmpty() ? QString() : text; };
    return run(
        u"INSERT INTO asset(id, file, sha1, bytes, mtime, width, height, title, caption, added) "
        u"VALUES(?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"_s,
        {photo.id,
         photo.file,
         QString::fromLatin1(photo.sha1),
         QString::number(photo.bytes),
         QString::number(photo.modified),
         orNull(photo.size.width),
         orNull(photo.size.height),
         orNone(photo.note.title),
         orNone(photo.note.description),
         now()}
    );
}

bool LibraryIndex::insertKeywords(const PhotoRecord& photo) const
{
    for (const QString& word : photo.note.keywords) {
        if (!run(
                u"INSERT OR IGNORE INTO keyword VALUES(?, ?)"_s,
                {photo.id, word.isNull() ? u""_s : word}
            ))
            return false;
    }
    return true;
}

bool LibraryIndex::joinAlbum(const PhotoRecord& photo) const
{
    return photo.album.isEmpty()
        || run(u"INSERT INTO album_asset VALUES(?1, ?2, "
               u"(SELECT COUNT(*) FROM album_asset WHERE album = ?1))"_s,
               {photo.album, photo.id});
}

bool LibraryIndex::run(const QString& text, const QStringList& values) const
{
    const auto statement = m_connection.prepare(text);
    if (!statement)
        return false;
    for (int index = 0; index < values.size(); ++index) {
        if (!values.at(index).isNull()) // an unbound parameter is "no value"
            statement->bind(index + 1, values.at(index));
    }
    return statement->step() == Statement::Step::Done;
}

std::optional<QString> LibraryIndex::valueOf(const QString& query, const QString& id) const
{
    const auto statement = m_connection.prepare(query);
    if (!statement)
        return std::nullopt;
    statement->bind(1, id);
    return statement->step() == Statement::Step::Row ? statement->text(0) : std::nullopt;
}

} // namespace brenvaldo::platform::services
