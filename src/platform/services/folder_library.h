// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "library_index.h"
#include "photo_library.h"
#include "work_queue.h"

namespace brenvaldo::platform::services {

/// A photo library that is a folder: one folder an album, "Unsorted" for photos without one, and an
/// index in "library.db".
///
/// What is noted about a photo stands in the photo's own file, so that other programs find it. A
/// file keeps its name, with " (2)" and so on where another one has it. Folders tell their album in
/// ".album.json": they outlive the index.
class FolderLibrary : public PhotoLibrary
{
public:
    /// Nothing is made before the first change.
    explicit FolderLibrary(QString folder);

    [[nodiscard]] QList<PhotoAlbum> albums() override;
    void createAlbum(const QString& title, Completion completion) override;
    void addPhoto(const NewPhoto& photo, Completion completion) override;
    void setFavourite(const QString& photo, bool favourite, Completion completion) override;
    void touch(const QString& photo, Completion completion) override;
    void waitForAll() override;

private:
    [[nodiscard]] QString indexPath() const;
    [[nodiscard]] QString pathOf(const QString& name) const;
    [[nodiscard]] std::optional<LibraryIndex> openIndex() const;
    [[nodiscard]] bool findAlbumsOfFolders(const LibraryIndex& index) const;

    [[nodiscard]] Answer created(const QString& title) const;
    [[nodiscard]] Answer added(const NewPhoto& photo) const;
    [[nodiscard]] Answer marked(const QString& photo, bool favourite) const;
    [[nodiscard]] QString
    keepFile(const QByteArray& contents, const NewPhoto& photo, const QString& folder) const;

    QString m_folder;
    WorkQueue m_queue; ///< last: its work uses the others
};

/// Where the user's library lies: "Brenvaldo Library" in the folder for pictures.
[[nodiscard]] QString folderOfLibrary();

} // namespace brenvaldo::platform::services
