// SPDX-License-Identifier: GPL-3.0-or-later
#include "folder_library.h"

#include "album_folder_name.h"

#include <platform/codecs/image_source.h>
#include <platform/foundation/literals.h>
#include <platform/foundation/output_file.h>
#include <platform/foundation/paths.h>
#include <platform/storage/atomic_file.h>
#include <platform/storage/file_system.h>
#include <platform/storage/file_tags.h>

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QStandardPaths>
#include <QUuid>

#include <utility>

namespace brenvaldo::platform::services {

namespace {

using Answer = PhotoLibrary::Answer;

QString newId() { return QUuid::createUuid().toString(QUuid::WithoutBraces); }

QString albumFile(const QString& folder) { return folder + u"/.album.json"_s; }

bool tellAlbum(const QString& folder, const AlbumRecord& album)
{
    const QJsonObject facts{{u"id"_s, album.id}, {u"title"_s, album.title}};
    return storage::writeFileAtomically(albumFile(folder), QJsonDocument(facts).toJson());
}

/// Nothing for a folder that is no album's.
std::optional<AlbumRecord> albumOf(const storage::FolderEntry& folder)
{
    QFile file(albumFile(folder.path));
    if (!folder.isFolder || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QJsonObject facts = QJsonDocument::fromJson(file.readAll()).object();
    const QString id = facts.value(u"id"_s).toString();
    if (id.isEmpty())
        return std::nullopt;
    return AlbumRecord{
        .id = id, .title = facts.value(u"title"_s).toString(), .folder = folder.name};
}

std::optional<QByteArray> contentsOf(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    return file.readAll();
}

Answer failed(const QString& fault) { return {.id = {}, .fault = fault}; }

graphics::PixelSize sizeOf(const QString& path)
{
    const auto source = codecs::ImageSource::open(path);
    return source ? source->header().uprightSize : graphics::PixelSize();
}

PhotoRecord recordOf(const NewPhoto& photo, const QString& path, const QByteArray& contents)
{
    return {
        .id = newId(),
        .file = {},
        .sha1 = QCryptographicHash::hash(contents, QCryptographicHash::Sha1).toHex(),
        .bytes = contents.size(),
        .modified = QFileInfo(path).lastModified().toMSecsSinceEpoch(),
        .size = sizeOf(path),
        .album = photo.album,
        .note = photo.note};
}

/// Names that differ in their case alone are one on some file systems.
bool standsIn(const QString& folder, const QString& name)
{
    const QStringList names = QDir(folder).entryList(QDir::AllEntries | QDir::Hidden);
    return names.contains(name, Qt::CaseInsensitive);
}

} // namespace

FolderLibrary::FolderLibrary(QString folder)
    : m_folder(std::move(folder))
{
}

QList<PhotoAlbum> FolderLibrary::albums()
{
    m_queue.waitForAwaited();
    QList<PhotoAlbum> albums;
    if (!QFile::exists(indexPath()) && !QFileInfo::exists(m_folder))
        return albums;
    if (const auto index = openIndex()) {
        for (const AlbumRecord& album : index->albums())
            albums.append({.id = album.id, .title = album.title});
    }
    return albums;
}

void FolderLibrary::createAlbum(const QString& title, Completion completion)
{
    m_queue.add(
        [this, title, completion = std::move(completion)] { completion(created(title)); },
        WorkQueue::Kind::Awaited
    );
}

void FolderLibrary::addPhoto(const NewPhoto& photo, Completion completion)
{
    m_queue.add([this, photo, completion = std::move(completion)] { completion(added(photo)); });
}

void FolderLibrary::setFavourite(const QString& photo, bool favourite, Completion completion)
{
    m_queue.add([this, photo, favourite, completion = std::move(completion)] {
        completion(marked(photo, favourite));
    });
}

void FolderLibrary::touch(const QString& photo, Completion completion)
{
    m_queue.add([photo, completion = std::move(completion)] {
        completion({.id = photo, .fault = {}});
    });
}

void FolderLibrary::waitForAll() { m_queue.waitForAll(); }

QString FolderLibrary::indexPath() const { return pathOf(u"library.db"_s); }

QString FolderLibrary::pathOf(const QString& name) const
{
    return platform::appendingPathComponent(m_folder, name);
}

std::optional<LibraryIndex> FolderLibrary::openIndex() const
{
    const bool isNew = !QFile::exists(indexPath());
    if (!storage::createFolder(m_folder))
        return std::nullopt;
    auto index = LibraryIndex::open(indexPath());
    if (index && isNew && !findAlbumsOfFolders(*index))
        return std::nullopt;
    return index;
}

bool FolderLibrary::findAlbumsOfFolders(const LibraryIndex& index) const
{
    for (const storage::FolderEntry& folder : storage::folderEntries(m_folder)) {
        const auto album = albumOf(folder);
        if (album && !index.addAlbum(*album))
            return false;
    }
    return true;
}

Answer FolderLibrary::created(const QString& title) const
{
    const auto index = openIndex();
    if (!index)
        return failed(u"The photo library \"%1\" can't be opened."_s.arg(m_folder));
    const QString folder = freeName(albumFolderName(title), {}, [this](const QString& name) {
        return name == u"Unsorted" || standsIn(m_folder, name);
    });
    const AlbumRecord album{.id = newId(), .title = title, .folder = folder};
    if (!storage::createFolder(pathOf(folder)) || !tellAlbum(pathOf(folder), album))
        return failed(u"The folder \"%1\" can't be made."_s.arg(pathOf(folder)));
    return index->addAlbum(album) ? Answer{.id = album.id, .fault = {}} : failed(index->fault());
}

Answer FolderLibrary::added(const NewPhoto& photo) const
{
    const auto index = openIndex();
    if (!index)
        return failed(u"The photo library \"%1\" can't be opened."_s.arg(m_folder));
    const auto contents = contentsOf(photo.file);
    if (!contents)
        return failed(u"The file \"%1\" can't be read."_s.arg(photo.file));
    const auto album = index->folderOfAlbum(photo.album);
    const QString folder = album.value_or(u"Unsorted"_s);
    const QByteArray kept = photo.note.isEmpty()
        ? *contents
        : metadata::withXmpNote(*contents, photo.note).value_or(*contents);
    const QString name = keepFile(kept, photo, folder);
    if (name.isEmpty())
        return failed(u"The file can't be written into \"%1\"."_s.arg(pathOf(folder)));
    PhotoRecord record = recordOf(photo, pathOf(name), kept);
    record.file = name;
    record.album = album ? photo.album : QString();
    if (!index->addPhoto(record)) {
        QFile::remove(pathOf(name));
        return failed(index->fault());
    }
    return {.id = record.id, .fault = {}};
}

QString FolderLibrary::keepFile(
    const QByteArray& contents, const NewPhoto& photo, const QString& folder
) const
{
    const QString original = platform::lastPathComponent(photo.file);
    const QString extension = platform::pathExtension(original);
    const QString dotted = extension.isEmpty() ? QString() : u'.' + extension;
    const QString target = folder + u'/'
        + freeName(original.chopped(dotted.size()), dotted, [&](const QString& name) {
                               return standsIn(pathOf(folder), name);
                           });
    if (!storage::createFolder(pathOf(folder)))
        return {};
    storage::AtomicFile file(pathOf(target));
    if (!file.isValid())
        return {};
    OutputFile output(file.temporaryPath());
    output.write(contents);
    if (!output.finish() || !file.commit(storage::AtomicFile::Existing::Kept))
        return {};
    if (!photo.note.keywords.isEmpty())
        storage::setFileTags(pathOf(target), photo.note.keywords);
    return target;
}

Answer FolderLibrary::marked(const QString& photo, bool favourite) const
{
    const auto index = openIndex();
    const auto file = index ? index->fileOfPhoto(photo) : std::nullopt;
    if (!file)
        return failed(u"The photo library has no such photo."_s);
    if (!index->setFavourite(photo, favourite))
        return failed(index->fault());
    const auto contents = contentsOf(pathOf(*file));
    const auto edited = contents ? metadata::withFavourite(*contents, favourite) : std::nullopt;
    // Files that hold no metadata are favourites by the index alone.
    if (edited && !storage::writeFileAtomically(pathOf(*file), *edited))
        return failed(u"The file \"%1\" can't be written."_s.arg(pathOf(*file)));
    return {.id = photo, .fault = {}};
}

QString folderOfLibrary()
{
    const QString told = qEnvironmentVariable("XDG_PICTURES_DIR");
    const QString pictures = told.isEmpty()
        ? QStandardPaths::writableLocation(QStandardPaths::PicturesLocation)
        : told;
    return platform::appendingPathComponent(pictures, u"Brenvaldo Library"_s);
}

} // namespace brenvaldo::platform::services
