// SPDX-License-Identifier: GPL-3.0-or-later
#include "sorting_panel.h"

#include "common_rows.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::panels {

SortingPanel::SortingPanel()
    : PanelView(u"vwFileManagementSorting"_s)
{
    mySortTabView.addAction(u"cGUIcontrols.tabViewdidSelectTabViewItem"_s);
    setLayout({{Pages{
        .tabs = &mySortTabView,
        .pages
        = {manualPage(),
           {{Note{u"Photos and files that meet your criteria go to the destination folder."_s}}},
           uploadPage()}}}});
}

Layout SortingPanel::manualPage()
{
    return {
        {textRow(u"Folder 1"_s, tfSortDestination01)},
        {textRow(u"Folder 2"_s, tfSortDestination02)},
        {textRow(u"Folder 3"_s, tfSortDestination03)},
        {textRow(u"Folder 4"_s, tfSortDestination04)},
        {textRow(u"Folder 5"_s, tfSortDestination05)},
        {textRow(u"Folder 6"_s, tfSortDestination06)},
    };
}

Layout SortingPanel::uploadPage()
{
    return {
        {Table{
            .table = &myPhotosTableView,
            .columns = {{.key = u"photosAlbumName"_s, .title = u"Album"_s}},
            .accessibleName = u"Albums of the photo library"_s}},
        {textRow(u"Title"_s, tfAddTitle)},
        {textRow(u"Keywords"_s, tfAddKeyword)},
        {textRow(u"Description"_s, tfAddDescription)},
        {Row{.fields = {{.control = &cbAddToFavorite}}}},
    };
}

} // namespace brenvaldo::panels
