// SPDX-License-Identifier: GPL-3.0-or-later
#include "photos_link.h"

#include <files/file_handling.h>
#include <files/tool_box.h>
#include <platform/foundation/literals.h>
#include <platform/foundation/log.h>
#include <platform/foundation/paths.h>
#include <platform/storage/atomic_file.h>

#include <QCollator>
#include <QFile>
#include <QLocale>

#include <algorithm>

namespace brenvaldo::services {

using platform::services::PhotoAlbum;
using platform::services::PhotoLibrary;
using Answer = PhotoLibrary::Answer;

namespace {

platform::metadata::PhotoNote noteOf(const PhotoUpload& upload)
{
    return {
        .keywords = upload.keyword.isEmpty() ? QStringList() : upload.keyword.split(u';'),
        .title = upload.title,
        .description = upload.description};
}

/// A file that can't hold the texts stays as it is.
void writeNote(const QString& path, const platform::metadata::PhotoNote& note)
{
    QFile file(path);
    if (note.isEmpty() || !file.open(QIODevice::ReadOnly))
        return;
    if (const auto noted = platform::metadata::withIptcNote(file.readAll(), note))
        (void)platform::storage::writeFileAtomically(path, *noted);
}

QStringList sortedTitles(const QList<PhotoAlbum>& albums)
{
    QStringList titles;
    for (const PhotoAlbum& album : albums)
        titles.append(album.title);
    // Without a language of the user's there is no order but that of the bytes.
    QCollator order(QLocale().language() == QLocale::C ? QLocale(QLocale::English) : QLocale());
    order.setNumericMode(true);
    order.setCaseSensitivity(Qt::CaseInsensitive);
    std::stable_sort(titles.begin(), titles.end(), order);
    return titles;
}

void logFailedAlbum(const Answer& answer)
{
    platform::log(u"Error creating album: "_s + answer.fault);
}

} // namespace

cPhotosLink::cPhotosLink(panels::Panels& panels, PhotoLibrary& library)
    : m_panels(panels)
    , m_library(library)
{
}

cPhotosLink::~cPhotosLink() { m_library.waitForAll(); }

void cPhotosLink::registerActions(controls::ActionRegistry& actions)
{
    const auto add = [&](const QString& name, void (cPhotosLink::*action)()) {
        actions.add(u"cPhotosLink"_s, name, [this, action](const auto&) { (this->*action)(); });
    };
    add(u"hGetAllAlbums"_s, &cPhotosLink::hGetAllAlbums);
    add(u"hMakeNewAlbums"_s, &cPhotosLink::hMakeNewAlbums);
    add(u"okClosePhotosAlbumSheetObjC"_s, &cPhotosLink::okClosePhotosAlbumSheetObjC);
    add(u"cancelClosePhotosAlbumSheetObjC"_s, &cPhotosLink::cancelClosePhotosAlbumSheetObjC);
}

void cPhotosLink::hGetAllAlbums() { getAllAlbums(); }

void cPhotosLink::hMakeNewAlbums()
{
    m_panels.wwPhotosAlbumWindow.sheet.open();
    m_panels.wwPhotosAlbumWindow.tfPhotosAlbumName.setStringValue({});
}

void cPhotosLink::okClosePhotosAlbumSheetObjC()
{
    const QString title = m_panels.wwPhotosAlbumWindow.tfPhotosAlbumName.stringValue();
    m_panels.wwPhotosAlbumWindow.sheet.close();
    createAlbumWithName(title);
}

void cPhotosLink::cancelClosePhotosAlbumSheetObjC() { m_panels.wwPhotosAlbumWindow.sheet.close(); }

void cPhotosLink::getAllAlbums()
{
    QList<QStringList> rows;
    for (const QString& title : sortedTitles(m_library.albums()))
        rows.append({title});
    m_panels.vwFileManagementSorting.theApplePhotosData.setObjects(rows);
}

void cPhotosLink::createAlbumWithName(const QString& title)
{
    m_library.createAlbum(title, [this, title](const Answer& answer) {
        if (!answer.isDone())
            return logFailedAlbum(answer);
        QMetaObject::invokeMethod(
            &m_mainThread, [this] { getAllAlbums(); }, Qt::QueuedConnection
        );
        platform::log(u"Successfully created album: "_s + title);
    });
}

void cPhotosLink::uploadToPhotos(const PhotoUpload& upload)
{
    const QString working = workingFile(upload.path);
    const platform::metadata::PhotoNote note = noteOf(upload);
    writeNote(working, note);
    const QString album = idOfAlbum(upload.album);
    if (album.isEmpty())
        requestAlbum(upload.album);
    m_library.addPhoto(
        {.file = working, .album = album, .note = note},
        [this, working, favourite = upload.favourite == u"1"](const Answer& answer) {
            if (answer.isDone())
                return markAndRemove(answer.id, working, favourite);
            platform::log(
                u"Failed to add image to Photos library and mark as favorite: "_s + answer.fault
            );
            release(working);
        }
    );
}

QString cPhotosLink::workingFile(const QString& path)
{
    const QString copy = platform::appendingPathComponent(
        files::cToolBox::hGetTempDir(), platform::lastPathComponent(path)
    );
    {
        // Another photo of this name may still be on its way.
        std::unique_lock lock(m_mutex);
        m_released.wait(lock, [&] {
            return !m_working.contains(copy) && !m_working.contains(path);
        });
    }
    const files::FileResult copied
        = files::cNSFileHandling::hCopyFileTo({.source = path, .target = copy});
    const QString working = copied == files::FileResult::Ok ? copy : path;
    const std::lock_guard lock(m_mutex);
    m_working.insert(working);
    return working;
}

QString cPhotosLink::idOfAlbum(const QString& title) const
{
    const QList<PhotoAlbum> albums = m_library.albums();
    const auto found = std::find_if(albums.begin(), albums.end(), [&title](const auto& album) {
        return album.title == title;
    });
    return found == albums.end() ? QString() : found->id;
}

void cPhotosLink::requestAlbum(const QString& title) const
{
    m_library.createAlbum(title, [](const Answer& answer) {
        if (!answer.isDone())
            logFailedAlbum(answer);
    });
}

void cPhotosLink::markAndRemove(const QString& photo, const QString& working, bool favourite)
{
    const auto finish = [this, working](const Answer& answer) {
        platform::log(
            answer.isDone() ? u"Comment added successfully"_s
                            : u"Failed to add comment: "_s + answer.fault
        );
        files::cNSFileHandling::hDeleteFiles({QUrl::fromLocalFile(working)});
        release(working);
    };
    if (favourite)
        m_library.setFavourite(photo, true, finish);
    else
        m_library.touch(photo, finish);
}

void cPhotosLink::release(const QString& working)
{
    const std::lock_guard lock(m_mutex);
    m_working.erase(working);
    m_released.notify_all();
}

} // namespace brenvaldo::services
