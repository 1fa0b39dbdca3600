// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/foundation/literals.h>
#include <workspace/list_picture.h>

#include <platform/foundation/signal.h>

#include <QList>
#include <QString>
#include <QUrl>

#include <optional>

namespace brenvaldo::workspace {

/// One entry of the photo list.
struct cCollectionViewItem
{
    QString myPhotoName = u"pictureName"_s;
    QUrl myPhotoURL; ///< unset on entries added by dropping
    QString myPhotoDescription = u"Fantastisch"_s; ///< the file's path: the entry's identity
    QString myPhotoOrientation; ///< "L", "P" or "S"
    int myPhotoSelect = 1; ///< 1: takes part in a run
    ListPicture myPhoto; ///< what the grid draws
    QString myPhotoPxSize; ///< "4000x3000px | 2.10MB"
    QString myNewName; ///< name from a dry run of renaming
    int myRenameSelect = 0; ///< 1: a file that is no photo
};

/// The ordered list of photos and the entry that is selected (only the first of a selection
/// counts). The selection follows its entry to wherever that goes.
///
/// Once sorted, the list keeps its order: a new entry falls into its sorted place.
class PhotoList
{
public:
    enum class Order { Ascending, Descending };

    [[nodiscard]] const QList<cCollectionViewItem>& entries() const { return m_entries; }
    [[nodiscard]] int count() const { return static_cast<int>(m_entries.size()); }
    [[nodiscard]] bool isEmpty() const { return m_entries.isEmpty(); }

    void append(const cCollectionViewItem& entry);
    void insert(int index, const cCollectionViewItem& entry);
    void removeAt(int index);
    void replaceAt(int index, const cCollectionViewItem& entry);
    void move(int from, int to);
    void sortByName(Order order);
    void clear();
    /// Ticks (1) or unticks (0) all entries.
    void setAllTicks(int state);
    void setTick(int index, int state);
    /// Gives an entry the name that a dry run has made for it.
    void setNewName(int index, const QString& newName);

    [[nodiscard]] std::optional<int> selectedIndex() const { return m_selected; }
    /// An index outside of the list selects nothing.
    void select(std::optional<int> index);
    /// The first selected entry; null without a selection.
    [[nodiscard]] const cCollectionViewItem* selectedEntry() const;

    /// Also when entries, the selected one among them, have gone to other places.
    platform::Signal<> entriesChanged;
    /// The entry at an index has another new name.
    platform::Signal<int> newNameChanged;
    /// Another entry is selected, or none.
    platform::Signal<> selectionChanged;

private:
    enum class Selected { SameEntry, OtherEntry };

    void putIn(int place, const cCollectionViewItem& entry);
    Selected takeOut(int index);
    void moveTo(int from, int to, const cCollectionViewItem& entry);
    [[nodiscard]] int sortedPlaceOf(int index, Order order) const;
    [[nodiscard]] int placeFor(const cCollectionViewItem& entry, int wanted) const;

    QList<cCollectionViewItem> m_entries;
    std::optional<int> m_selected;
    std::optional<Order> m_order;
};

} // namespace brenvaldo::workspace
