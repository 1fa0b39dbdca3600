// SPDX-License-Identifier: GPL-3.0-or-later
#include "sorting_panel.h"

#include "common_rows.h"

namespace brenvaldo::panels {

SortingPanel::SortingPanel()
    : PanelView(u"vwFileManagementSorting"_qs)
    , mySortTabView(
          u"mySortTabView"_qs,
          {{.identifier = u"1"_qs, .label = u"By hand"_qs},
           {.identifier = u"2"_qs, .label = u"Batch mode"_qs},
           {.identifier = u"3"_qs, .label = u"Upload"_qs}}
      )
    , tfSortDestination01(u"tfSortDestination01"_qs)
    , tfSortDestination02(u"tfSortDestination02"_qs)
    , tfSortDestination03(u"tfSortDestination03"_qs)
    , tfSortDestination04(u"tfSortDestination04"_qs)
    , tfSortDestination05(u"tfSortDestination05"_qs)
    , tfSortDestination06(u"tfSortDestination06"_qs)
    , theApplePhotosData(u"theApplePhotosData"_qs, {u"photosAlbumName"_qs})
    , myPhotosTableView(u"myPhotosTableView"_qs, theApplePhotosData)
    , tfAddTitle(u"tfAddTitle"_qs)
    , tfAddKeyword(u"tfAddKeyword"_qs)
    , tfAddDescription(u"tfAddDescription"_qs)
    , cbAddToFavorite(u"cbAddToFavorite"_qs, u"Mark as favourite"_qs)
{
    mySortTabView.addAction(u"cGUIcontrols.tabViewdidSelectTabViewItem"_qs);
    setLayout({{Pages{
        .tabs = &mySortTabView,
        .pages
        = {manualPage(),
           {{Note{u"Photos and files that meet your criteria go to the destination folder."_qs}}},
           uploadPage()}}}});
}

Layout SortingPanel::manualPage()
{
    return {
        {textRow(u"Folder 1"_qs, tfSortDestination01)},
        {textRow(u"Folder 2"_qs, tfSortDestination02)},
        {textRow(u"Folder 3"_qs, tfSortDestination03)},
        {textRow(u"Folder 4"_qs, tfSortDestination04)},
        {textRow(u"Folder 5"_qs, tfSortDestination05)},
        {textRow(u"Folder 6"_qs, tfSortDestination06)},
    };
}

Layout SortingPanel::uploadPage()
{
    return {
        {Table{
            .table = &myPhotosTableView,
            .columns = {{.key = u"photosAlbumName"_qs, .title = u"Album"_qs}},
            .accessibleName = u"Albums of the photo library"_qs}},
        {textRow(u"Title"_qs, tfAddTitle)},
        {textRow(u"Keywords"_qs, tfAddKeyword)},
        {textRow(u"Description"_qs, tfAddDescription)},
        {Row{.fields = {{.control = &cbAddToFavorite}}}},
    };
}

} // namespace brenvaldo::panels
