// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "thumbnail_store.h"

#include <workspace/list/photo_list.h>

#include <QAbstractListModel>
#include <QHash>

namespace brenvaldo::views {

/// The photo list as the grid shows it; it only reads, every change goes through the workspace.
class PhotoGridModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role {
        PictureRole = Qt::UserRole + 1,
        TickRole,
        SizeRole,
        NewNameRole,
        NewNameKindRole,
        DocumentRole
    };

    /// What a dry run has made of a name.
    enum class NewName {
        None,
        Other,
        Same, ///< the file keeps its name
        Clash ///< another entry gets the same name
    };

    PhotoGridModel(const workspace::PhotoList& photos, int pictureSide, QObject* parent = nullptr);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;

private:
    void takeEntries();
    void takeNewName(int row);
    [[nodiscard]] NewName newNameOf(const workspace::cCollectionViewItem& entry) const;
    void pictureArrived(const QString& path);
    [[nodiscard]] QString spokenText(const workspace::cCollectionViewItem& entry) const;

    const workspace::PhotoList& m_photos;
    QList<workspace::cCollectionViewItem> m_entries; ///< as last told to the view
    QHash<QString, int> m_newNames; ///< how many entries get a name
    mutable ThumbnailStore m_pictures;
    platform::Subscription m_changes;
    platform::Subscription m_renamings;
};

} // namespace brenvaldo::views
