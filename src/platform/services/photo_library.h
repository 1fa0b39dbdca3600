// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/metadata/photo_note.h>

#include <QList>
#include <QString>

#include <functional>

namespace brenvaldo::platform::services {

struct PhotoAlbum
{
    QString id;
    QString title; ///< may be empty, and several albums may have the same

    friend bool operator==(const PhotoAlbum&, const PhotoAlbum&) = default;
};

/// A file that is to become a photo of the library.
struct NewPhoto
{
    QString file;
    QString album; ///< id; empty: it joins none
    metadata::PhotoNote note; ///< what the library keeps about it
};

/// A library of photos in albums.
///
/// Changes are made one after the other, in the order in which they were asked for, while the
/// caller goes on; each tells its end on a thread of the library's own. An object that goes away
/// makes the changes that it was asked for first.
class PhotoLibrary
{
public:
    /// How a change ended.
    struct Answer
    {
        QString id; ///< of the album or photo that was made or changed
        QString fault; ///< empty when the change was made

        [[nodiscard]] bool isDone() const { return fault.isEmpty(); }
    };

    using Completion = std::function<void(const Answer& answer)>;

    PhotoLibrary() = default;
    PhotoLibrary(const PhotoLibrary&) = delete;
    PhotoLibrary& operator=(const PhotoLibrary&) = delete;
    PhotoLibrary(PhotoLibrary&&) = delete;
    PhotoLibrary& operator=(PhotoLibrary&&) = delete;
    virtual ~PhotoLibrary() = default;

    /// Oldest first; those that were asked for before are among them.
    [[nodiscard]] virtual QList<PhotoAlbum> albums() = 0;

    virtual void createAlbum(const QString& title, Completion completion) = 0;
    /// Each call makes a photo of its own, of the same file too.
    virtual void addPhoto(const NewPhoto& photo, Completion completion) = 0;
    virtual void setFavourite(const QString& photo, bool favourite, Completion completion) = 0;
    /// A change that changes nothing.
    virtual void touch(const QString& photo, Completion completion) = 0;

    /// Returns when all changes have been made, and those that their completions asked for.
    virtual void waitForAll() = 0;
};

} // namespace brenvaldo::platform::services
