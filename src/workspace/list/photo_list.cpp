// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo_list.h"

#include <platform/foundation/text.h>

#include <algorithm>

namespace brenvaldo::workspace {

namespace {

bool standsBefore(
    const cCollectionViewItem& left, const cCollectionViewItem& right, PhotoList::Order order
)
{
    const int comparison = platform::caseInsensitiveCompare(left.myPhotoName, right.myPhotoName);
    return order == PhotoList::Order::Ascending ? comparison < 0 : comparison > 0;
}

} // namespace

void PhotoList::append(const cCollectionViewItem& entry) { insert(count(), entry); }

void PhotoList::insert(int index, const cCollectionViewItem& entry)
{
    if (index < 0 || index > count())
        return;
    putIn(placeFor(entry, index), entry);
    entriesChanged();
}

void PhotoList::putIn(int place, const cCollectionViewItem& entry)
{
    m_entries.insert(place, entry);
    if (m_selected && place <= *m_selected)
        ++*m_selected;
}

/// The entry behind a selected one that goes is selected in its place, or the last one.
PhotoList::Selected PhotoList::takeOut(int index)
{
    m_entries.removeAt(index);
    if (!m_selected || index > *m_selected)
        return Selected::SameEntry;
    if (index < *m_selected) {
        --*m_selected;
        return Selected::SameEntry;
    }
    m_selected = isEmpty() ? std::nullopt : std::optional(std::min(index, count() - 1));
    return Selected::OtherEntry;
}

/// The place next to `wanted` at which the list stays in its order.
int PhotoList::placeFor(const cCollectionViewItem& entry, int wanted) const
{
    if (!m_order)
        return wanted;
    const auto before = [this](const cCollectionViewItem& left, const cCollectionViewItem& right) {
        return standsBefore(left, right, *m_order);
    };
    const auto [first, last]
        = std::equal_range(m_entries.cbegin(), m_entries.cend(), entry, before);
    return std::clamp(
        wanted,
        static_cast<int>(first - m_entries.cbegin()),
        static_cast<int>(last - m_entries.cbegin())
    );
}

void PhotoList::removeAt(int index)
{
    if (index < 0 || index >= count())
        return;
    const Selected selected = takeOut(index);
    entriesChanged();
    if (selected == Selected::OtherEntry)
        selectionChanged();
}

void PhotoList::replaceAt(int index, const cCollectionViewItem& entry)
{
    if (index >= 0 && index < count())
        moveTo(index, index, entry);
}

void PhotoList::move(int from, int to)
{
    if (from >= 0 && from < count() && to >= 0 && to < count())
        moveTo(from, to, cCollectionViewItem(m_entries.at(from)));
}

void PhotoList::moveTo(int from, int to, const cCollectionViewItem& entry)
{
    const bool wasSelected = m_selected == from;
    takeOut(from);
    const int place = placeFor(entry, to);
    putIn(place, entry);
    if (wasSelected)
        m_selected = place;
    entriesChanged();
}

void PhotoList::sortByName(Order order)
{
    m_order = order;
    if (m_selected)
        m_selected = sortedPlaceOf(*m_selected, order);
    std::stable_sort(
        m_entries.begin(),
        m_entries.end(),
        [order](const cCollectionViewItem& left, const cCollectionViewItem& right) {
            return standsBefore(left, right, order);
        }
    );
    entriesChanged();
}

/// Where the sorting, which keeps entries of the same name in their order, puts an entry.
int PhotoList::sortedPlaceOf(int index, Order order) const
{
    const cCollectionViewItem& entry = m_entries.at(index);
    int place = 0;
    for (int other = 0; other < count(); ++other) {
        const bool isBefore = standsBefore(m_entries.at(other), entry, order);
        const bool isBehind = standsBefore(entry, m_entries.at(other), order);
        place += isBefore || (!isBehind && other < index) ? 1 : 0;
    }
    return place;
}

void PhotoList::clear()
{
    if (isEmpty())
        return;
    m_entries.clear();
    const bool wasSelected = m_selected.has_value();
    m_selected.reset();
    entriesChanged();
    if (wasSelected)
        selectionChanged();
}

void PhotoList::setAllTicks(int state)
{
    for (cCollectionViewItem& entry : m_entries)
        entry.myPhotoSelect = state;
    entriesChanged();
}

void PhotoList::setTick(int index, int state)
{
    if (index < 0 || index >= count())
        return;
    m_entries[index].myPhotoSelect = state;
    entriesChanged();
}

void PhotoList::setNewName(int index, const QString& newName)
{
    if (index < 0 || index >= count() || m_entries.at(index).myNewName == newName)
        return;
    m_entries[index].myNewName = newName;
    newNameChanged(index);
}

void PhotoList::select(std::optional<int> index)
{
    const bool inside = index && *index >= 0 && *index < count();
    const std::optional<int> wanted = inside ? index : std::nullopt;
    if (m_selected == wanted)
        return;
    m_selected = wanted;
    selectionChanged();
}

const cCollectionViewItem* PhotoList::selectedEntry() const
{
    return m_selected ? &m_entries.at(*m_selected) : nullptr;
}

} // namespace brenvaldo::workspace
