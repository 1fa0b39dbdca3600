// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "photo_upload.h"

#include <controls/action_registry.h>
#include <panels/panels.h>
#include <platform/services/photo_library.h>

#include <QObject>

#include <condition_variable>
#include <mutex>
#include <set>

namespace brenvaldo::services {

/// Adds photos to the user's photo library, and shows and makes its albums. Nothing tells the user
/// of a failure; the log is the only witness.
class cPhotosLink
{
public:
    /// Both must outlive this object.
    cPhotosLink(panels::Panels& panels, platform::services::PhotoLibrary& library);
    cPhotosLink(const cPhotosLink&) = delete;
    cPhotosLink& operator=(const cPhotosLink&) = delete;
    cPhotosLink(cPhotosLink&&) = delete;
    cPhotosLink& operator=(cPhotosLink&&) = delete;
    ~cPhotosLink();

    void registerActions(controls::ActionRegistry& actions);

    // The actions.
    void hGetAllAlbums();
    void hMakeNewAlbums();
    void okClosePhotosAlbumSheetObjC();
    void cancelClosePhotosAlbumSheetObjC();

    /// Fills the list of albums, sorted as a reader of the user's language expects.
    void getAllAlbums();

    /// Asks for an album; the list shows it some time after.
    void createAlbumWithName(const QString& title);

    /// Asks for a photo in the first album of the title, and for a new album where there is none:
    /// then this photo joins no album, for the new one comes too late.
    ///
    /// A copy in `Temp` gets the texts and goes when the photo is in the library. Where no copy can
    /// be made, that happens to the photo itself.
    void uploadToPhotos(const PhotoUpload& upload);

    /// Returns when everything that was asked for has been done.
    void waitForAll() { m_library.waitForAll(); }

private:
    [[nodiscard]] QString workingFile(const QString& path);
    [[nodiscard]] QString idOfAlbum(const QString& title) const;
    void requestAlbum(const QString& title) const;
    void markAndRemove(const QString& photo, const QString& working, bool favourite);
    void release(const QString& working);

    panels::Panels& m_panels;
    platform::services::PhotoLibrary& m_library;
    QObject m_mainThread; ///< where the controls live

    std::mutex m_mutex;
    std::condition_variable m_released;
    std::set<QString> m_working; ///< paths of files that are on their way into the library
};

} // namespace brenvaldo::services
