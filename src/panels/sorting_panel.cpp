// SPDX-License-Identifier: GPL-3.0-or-later
#include "sorting_panel.h"

#include "common_rows.h"

namespace brenvaldo::panels {

SortingPanel::SortingPanel()
    : PanelView(u"vwFileManagementSorting"_qs)
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
