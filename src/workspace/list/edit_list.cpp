// SPDX-License-Identifier: GPL-3.0-or-later
#include "collection_view_controller.h"
#include "list_entry.h"

namespace brenvaldo::workspace {

void cCollectionViewController::hRemoveAllPhoto()
{
    m_panels.vwShowPreview.cbShowPreview.setState(0);
    m_photos.clear();
    showNoPhoto();
    showCount();
}

void cCollectionViewController::hRemoveSelectedPhotoObject()
{
    const auto index = m_photos.selectedIndex();
    if (!index || m_photos.count() == 1)
        showNoPhoto();
    if (!index)
        return;
    m_photos.removeAt(*index);
    if (selectsNonPhoto())
        showNoPhoto();
    showCount();
}

void cCollectionViewController::hReplaceSelectedPhotoObject(const QString& path)
{
    const auto index = m_photos.selectedIndex();
    if (!index) {
        showNoPhoto();
        return;
    }
    m_photos.removeAt(*index);
    showCount();
    m_photos.insert(*index, insertedEntry(path));
    showCount();
    m_photos.select(index);
}

void cCollectionViewController::hProcessAllPhotoFlag()
{
    m_photos.setAllTicks(m_window.cbPhotoToProcess.state());
}

void cCollectionViewController::cbPhotoToProcessClicked() { m_window.cbPhotoToProcess.setState(0); }

void cCollectionViewController::setSortingModeAz() { sortByName(PhotoList::Order::Ascending); }

void cCollectionViewController::setSortingModezA() { sortByName(PhotoList::Order::Descending); }

void cCollectionViewController::sortByName(PhotoList::Order order)
{
    if (!m_photos.selectedIndex())
        return;
    m_photos.sortByName(order);
    m_photos.select(0);
    callForPreview();
}

void cCollectionViewController::hUpdateCollectionViewItem(const QString& newName, int index)
{
    m_photos.setNewName(index, newName);
}

void cCollectionViewController::acceptDrop(const QList<int>& indexes, int proposedIndex)
{
    int target = proposedIndex - 1;
    for (const int index : indexes) {
        if (target + 1 != m_photos.count())
            ++target;
        m_photos.move(index, target);
        showCount();
    }
}

std::optional<QString> cCollectionViewController::hGetActiveFileFilePath() const
{
    const cCollectionViewItem* entry = m_photos.selectedEntry();
    return entry ? std::optional(entry->myPhotoDescription) : std::nullopt;
}

} // namespace brenvaldo::workspace
