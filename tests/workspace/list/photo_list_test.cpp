// SPDX-License-Identifier: GPL-3.0-or-later
#include <platform/foundation/literals.h>
#include <workspace/list/photo_list.h>

#include <support/text_printing.h>

#include <gtest/gtest.h>

using namespace brenvaldo;
using workspace::PhotoList;

namespace {

workspace::cCollectionViewItem named(const QString& name)
{
    workspace::cCollectionViewItem entry;
    entry.myPhotoName = name;
    return entry;
}

void fill(PhotoList& list, const QStringList& names)
{
    for (const QString& name : names)
        list.append(named(name));
}

QStringList names(const PhotoList& list)
{
    QStringList found;
    for (const auto& entry : list.entries())
        found.append(entry.myPhotoName);
    return found;
}

} // namespace

TEST(CollectionViewItem, StartsTickedUnderItsPlaceholders)
{
    const workspace::cCollectionViewItem entry;

    EXPECT_EQ(entry.myPhotoName, u"pictureName"_s);
    EXPECT_EQ(entry.myPhotoDescription, u"Fantastisch"_s);
    EXPECT_EQ(entry.myPhotoSelect, 1);
}

TEST(PhotoList, SortsByNameWithoutRegardToCase)
{
    PhotoList list;
    fill(list, {u"b"_s, u"C"_s, u"a"_s});

    list.sortByName(PhotoList::Order::Ascending);
    EXPECT_EQ(names(list), (QStringList{u"a"_s, u"b"_s, u"C"_s}));

    list.sortByName(PhotoList::Order::Descending);
    EXPECT_EQ(names(list), (QStringList{u"C"_s, u"b"_s, u"a"_s}));
}

TEST(PhotoList, LetsNewEntriesFallIntoTheirSortedPlace)
{
    PhotoList list;
    fill(list, {u"d"_s, u"a"_s});
    list.sortByName(PhotoList::Order::Ascending);

    list.append(named(u"B"_s));
    list.insert(0, named(u"e"_s));

    EXPECT_EQ(names(list), (QStringList{u"a"_s, u"B"_s, u"d"_s, u"e"_s}));
}

TEST(PhotoList, HoldsTheSameFileTwice)
{
    PhotoList list;

    fill(list, {u"a"_s, u"a"_s});

    EXPECT_EQ(list.count(), 2);
}

TEST(PhotoList, SelectsNothingOutsideOfTheList)
{
    PhotoList list;
    fill(list, {u"a"_s});
    list.select(0);

    list.select(1);

    EXPECT_EQ(list.selectedIndex(), std::nullopt);
    EXPECT_EQ(list.selectedEntry(), nullptr);
}

TEST(PhotoList, TellsOfASelectionThatChangesOnly)
{
    PhotoList list;
    fill(list, {u"a"_s, u"b"_s});
    int changes = 0;
    const auto subscription = list.selectionChanged.connect([&] { ++changes; });

    list.select(0);
    list.select(0);
    list.select(1);

    EXPECT_EQ(changes, 2);
}

TEST(PhotoList, KeepsTheSelectionOnItsEntryWhereverItGoes)
{
    PhotoList list;
    fill(list, {u"b"_s, u"c"_s, u"d"_s});
    list.select(1);
    int changes = 0;
    const auto subscription = list.selectionChanged.connect([&] { ++changes; });
    const auto selected = [&] { return list.selectedEntry()->myPhotoName; };

    list.insert(0, named(u"e"_s));
    EXPECT_EQ(selected(), u"c"_s);
    list.insert(3, named(u"f"_s));
    EXPECT_EQ(selected(), u"c"_s);
    list.removeAt(0);
    EXPECT_EQ(selected(), u"c"_s);
    list.removeAt(3);
    EXPECT_EQ(selected(), u"c"_s);
    list.move(0, 2);
    EXPECT_EQ(selected(), u"c"_s);
    list.move(2, 0);
    EXPECT_EQ(selected(), u"c"_s);
    list.move(1, 2);
    EXPECT_EQ(selected(), u"c"_s);
    list.replaceAt(2, named(u"c"_s));
    EXPECT_EQ(selected(), u"c"_s);
    list.sortByName(PhotoList::Order::Descending);
    EXPECT_EQ(selected(), u"c"_s);
    list.append(named(u"z"_s));
    EXPECT_EQ(selected(), u"c"_s);
    EXPECT_EQ(list.selectedIndex(), 2);
    EXPECT_EQ(changes, 0);
}

TEST(PhotoList, KeepsTheSelectionAmongEntriesOfTheSameName)
{
    PhotoList list;
    for (const int size : {1, 2, 3, 4}) {
        auto entry = named(size == 4 ? u"a"_s : u"b"_s);
        entry.myPhotoPxSize = QString::number(size);
        list.append(entry);
    }
    list.select(1);

    list.sortByName(PhotoList::Order::Ascending);

    EXPECT_EQ(list.selectedIndex(), 2);
    EXPECT_EQ(list.selectedEntry()->myPhotoPxSize, u"2"_s);
}

TEST(PhotoList, TellsThatAnotherEntryIsSelectedWhenTheSelectedOneGoes)
{
    PhotoList list;
    fill(list, {u"a"_s, u"b"_s, u"c"_s});
    list.select(1);
    QStringList selected;
    const auto subscription = list.selectionChanged.connect([&] {
        const auto* entry = list.selectedEntry();
        selected.append(entry ? entry->myPhotoName : u"none"_s);
    });

    list.removeAt(1);
    list.removeAt(1);
    list.clear();

    EXPECT_EQ(selected, (QStringList{u"c"_s, u"a"_s, u"none"_s}));
}

TEST(PhotoList, SelectsTheLastEntryWhenTheSelectedLastOneGoes)
{
    PhotoList list;
    fill(list, {u"a"_s, u"b"_s});
    list.select(1);

    list.removeAt(1);
    EXPECT_EQ(list.selectedIndex(), 0);

    list.removeAt(0);
    EXPECT_EQ(list.selectedIndex(), std::nullopt);
}

TEST(PhotoList, HasNoSelectedEntryThatIsGoneWhenItTellsOfAChange)
{
    PhotoList list;
    fill(list, {u"a"_s, u"b"_s});
    list.select(1);
    QStringList selected;
    const auto subscription = list.entriesChanged.connect([&] {
        const auto* entry = list.selectedEntry();
        selected.append(entry ? entry->myPhotoName : u"none"_s);
    });

    list.removeAt(1);
    list.clear();

    EXPECT_EQ(selected, (QStringList{u"a"_s, u"none"_s}));
}

TEST(PhotoList, IgnoresIndexesOutsideOfTheList)
{
    PhotoList list;
    fill(list, {u"a"_s});

    list.removeAt(1);
    list.replaceAt(-1, named(u"b"_s));
    list.insert(3, named(u"b"_s));
    list.move(0, 1);
    list.setTick(1, 0);

    EXPECT_EQ(names(list), QStringList{u"a"_s});
}

TEST(PhotoList, TellsOfTheEntryThatGetsANewName)
{
    PhotoList list;
    list.append(named(u"a"_s));
    list.append(named(u"b"_s));
    int rebuilds = 0;
    QList<int> renamed;
    const auto changes = list.entriesChanged.connect([&] { ++rebuilds; });
    const auto names = list.newNameChanged.connect([&](int index) { renamed.append(index); });

    list.setNewName(1, u"c"_s);
    list.setNewName(1, u"c"_s);
    list.setNewName(2, u"d"_s);
    list.setNewName(-1, u"d"_s);

    EXPECT_EQ(list.entries().at(1).myNewName, u"c"_s);
    EXPECT_EQ(renamed, QList<int>{1});
    EXPECT_EQ(rebuilds, 0);
}
