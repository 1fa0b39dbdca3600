// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "batch_sort_controls.h"
#include "layout.h"

#include <controls/text_controls.h>
#include <platform/foundation/literals.h>

#include <array>

namespace brenvaldo::panels {

/// Sorting by hand, sorting by criteria, and the upload into the photo library, each on a tab.
struct SortingPanel : PanelView, BatchSortControls
{
    SortingPanel();

    controls::TabView mySortTabView{
        u"mySortTabView"_s,
        {{.identifier = u"1"_s, .label = u"By hand"_s},
         {.identifier = u"2"_s, .label = u"Batch mode"_s},
         {.identifier = u"3"_s, .label = u"Upload"_s}}};

    controls::TextField tfSortDestination01{u"tfSortDestination01"_s};
    controls::TextField tfSortDestination02{u"tfSortDestination02"_s};
    controls::TextField tfSortDestination03{u"tfSortDestination03"_s};
    controls::TextField tfSortDestination04{u"tfSortDestination04"_s};
    controls::TextField tfSortDestination05{u"tfSortDestination05"_s};
    controls::TextField tfSortDestination06{u"tfSortDestination06"_s};

    /// The buttons of each folder; their tags tell which one.
    struct FolderButtons
    {
        explicit FolderButtons(int folder);

        controls::Button choose;
        controls::Button show;
        controls::Button copy;
        controls::Button move;
        controls::Button alias;
    };
    std::array<FolderButtons, 6> sortFolderButtons{
        FolderButtons(1),
        FolderButtons(2),
        FolderButtons(3),
        FolderButtons(4),
        FolderButtons(5),
        FolderButtons(6)};
    controls::Button btnTrashPhoto{
        u"btnTrashPhoto"_s, u"Move the photo to the trash"_s, u"cGUIcontrols.hTrashPhoto"_s};

    /// The field of a folder, 1 to 6; null for any other number.
    [[nodiscard]] controls::TextField* sortDestination(int folder);

    /// The albums of the photo library.
    controls::ArrayController theApplePhotosData{u"theApplePhotosData"_s, {u"photosAlbumName"_s}};
    controls::TableView myPhotosTableView{u"myPhotosTableView"_s, theApplePhotosData};
    controls::TextField tfAddTitle{u"tfAddTitle"_s};
    controls::TextField tfAddKeyword{u"tfAddKeyword"_s};
    controls::TextField tfAddDescription{u"tfAddDescription"_s};
    controls::CheckBox cbAddToFavorite{u"cbAddToFavorite"_s, u"Mark as favourite"_s};
    /// Read by nobody.
    controls::CheckBox cbWarnDuplicates{u"cbWarnDuplicates"_s, u"Warn of duplicates"_s};
    controls::Button btnMakeNewAlbum{
        u"btnMakeNewAlbum"_s, u"New album\u2026"_s, u"cPhotosLink.hMakeNewAlbums"_s};
    controls::Button btnGetAllAlbums{
        u"btnGetAllAlbums"_s, u"Show albums"_s, u"cPhotosLink.hGetAllAlbums"_s};

private:
    [[nodiscard]] Layout folderRows(int folder);
    [[nodiscard]] Layout manualPage();
    [[nodiscard]] Layout uploadPage();
};

} // namespace brenvaldo::panels
