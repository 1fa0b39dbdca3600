// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo_grid_model.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::views {

using workspace::cCollectionViewItem;

namespace {

bool isDocument(const cCollectionViewItem& entry)
{
    return entry.myPhoto.kind == workspace::ListPicture::Kind::Generic;
}

QHash<QString, int> newNamesOf(const QList<cCollectionViewItem>& entries)
{
    QHash<QString, int> names;
    for (const cCollectionViewItem& entry : entries) {
        if (!entry.myNewName.isEmpty())
            ++names[entry.myNewName];
    }
    return names;
}

} // namespace

PhotoGridModel::PhotoGridModel(const workspace::PhotoList& photos, int pictureSide, QObject* parent)
    : QAbstractListModel(parent)
    , m_photos(photos)
    , m_entries(photos.entries())
    , m_newNames(newNamesOf(m_entries))
    , m_pictures(pictureSide)
    , m_changes(photos.entriesChanged.connect([this] { takeEntries(); }))
    , m_renamings(photos.newNameChanged.connect([this](int row) { takeNewName(row); }))
{
    connect(&m_pictures, &ThumbnailStore::arrived, this, &PhotoGridModel::pictureArrived);
}

int PhotoGridModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_entries.size());
}

QVariant PhotoGridModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid() || index.row() >= m_entries.size())
        return {};
    const cCollectionViewItem& entry = m_entries.at(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return entry.myPhotoName;
    case Qt::ToolTipRole:
        return entry.myPhotoDescription;
    case Qt::AccessibleTextRole:
        return spokenText(entry);
    case PictureRole:
        return isDocument(entry) ? QImage() : m_pictures.picture(entry.myPhoto);
    case TickRole:
        return entry.myPhotoSelect > 0;
    case SizeRole:
        return entry.myPhotoPxSize;
    case NewNameRole:
        return entry.myNewName;
    case NewNameKindRole:
        return static_cast<int>(newNameOf(entry));
    case DocumentRole:
        return isDocument(entry) || m_pictures.isUnreadable(entry.myPhoto.path);
    default:
        return {};
    }
}

QString PhotoGridModel::spokenText(const cCollectionViewItem& entry) const
{
    const QString tick = entry.myPhotoSelect > 0 ? tr("ticked") : tr("not ticked");
    const QString text = u"%1, %2, %3"_s.arg(entry.myPhotoName, entry.myPhotoPxSize, tick);
    switch (newNameOf(entry)) {
    case NewName::None:
        break;
    case NewName::Other:
        return text + tr(", new name %1").arg(entry.myNewName);
    case NewName::Same:
        return text + tr(", keeps its name");
    case NewName::Clash:
        return text + tr(", new name %1 clashes with another").arg(entry.myNewName);
    }
    return text;
}

PhotoGridModel::NewName PhotoGridModel::newNameOf(const cCollectionViewItem& entry) const
{
    if (entry.myNewName.isEmpty())
        return NewName::None;
    if (m_newNames.value(entry.myNewName) > 1)
        return NewName::Clash;
    return entry.myNewName == entry.myPhotoName ? NewName::Same : NewName::Other;
}

Qt::ItemFlags PhotoGridModel::flags(const QModelIndex& index) const
{
    const Qt::ItemFlags own = QAbstractListModel::flags(index);
    return index.isValid() ? own | Qt::ItemIsDragEnabled : own | Qt::ItemIsDropEnabled;
}

void PhotoGridModel::takeEntries()
{
    m_pictures.checkFilesAgain();
    const int before = static_cast<int>(m_entries.size());
    const int now = m_photos.count();
    if (now > before) {
        beginInsertRows({}, before, now - 1);
        m_entries = m_photos.entries();
        endInsertRows();
    } else if (now < before) {
        beginRemoveRows({}, now, before - 1);
        m_entries = m_photos.entries();
        endRemoveRows();
    } else {
        m_entries = m_photos.entries();
    }
    m_newNames = newNamesOf(m_entries);
    if (now > 0)
        Q_EMIT dataChanged(index(0), index(now - 1));
}

/// In a run over thousands of entries this is called for each of them.
void PhotoGridModel::takeNewName(int row)
{
    const QString before
        = std::exchange(m_entries[row].myNewName, m_photos.entries().at(row).myNewName);
    const QString& now = m_entries.at(row).myNewName;
    const bool endsClash = !before.isEmpty() && --m_newNames[before] == 1;
    const bool beginsClash = !now.isEmpty() && ++m_newNames[now] == 2;
    const bool changesOthers = endsClash || beginsClash;
    Q_EMIT dataChanged(index(changesOthers ? 0 : row), index(changesOthers ? rowCount() - 1 : row));
}

void PhotoGridModel::pictureArrived(const QString& path)
{
    for (int row = 0; row < m_entries.size(); ++row) {
        if (m_entries.at(row).myPhoto.path == path)
            Q_EMIT dataChanged(index(row), index(row), {PictureRole});
    }
}

} // namespace brenvaldo::views
