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
    m_entries.insert(placeFor(entry, index), entry);
    entriesChanged();
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
    m_entries.removeAt(index);
    entriesChanged();
    if (m_selected && *m_selected >= count())
        select(isEmpty() ? std::nullopt : std::optional(count() - 1));
}

void PhotoList::replaceAt(int index, const cCollectionViewItem& entry)
{
    if (index < 0 || index >= count())
        return;
    m_entries.removeAt(index);
    m_entries.insert(placeFor(entry, index), entry);
    entriesChanged();
}

void PhotoList::move(int from, int to)
{
    if (from < 0 || from >= count() || to < 0 || to >= count())
        return;
    const cCollectionViewItem entry = m_entries.takeAt(from);
    m_entries.insert(placeFor(entry, to), entry);
    entriesChanged();
}

void PhotoList::sortByName(Order order)
{
    m_order = order;
    std::stable_sort(
        m_entries.begin(),
        m_entries.end(),
        [order](const cCollectionViewItem& left, const cCollectionViewItem& right) {
            return standsBefore(left, right, order);
        }
    );
    entriesChanged();
}

void PhotoList::clear()
{
    if (isEmpty())
        return;
    m_entries.clear();
    entriesChanged();
    select(std::nullopt);
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
    return m_selected && *m_selected < count() ? &m_entries.at(*m_selected) : nullptr;
}

} // namespace brenvaldo::workspace
