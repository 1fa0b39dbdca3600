// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "layout.h"

#include <controls/text_controls.h>

namespace brenvaldo::panels {

/// Sorting by hand, sorting by criteria, and the upload into the photo library, each on a tab.
struct SortingPanel : PanelView
{
    SortingPanel();

    controls::TabView mySortTabView{
        u"mySortTabView"_qs,
        {{.identifier = u"1"_qs, .label = u"By hand"_qs},
         {.identifier = u"2"_qs, .label = u"Batch mode"_qs},
         {.identifier = u"3"_qs, .label = u"Upload"_qs}}};

    controls::TextField tfSortDestination01{u"tfSortDestination01"_qs};
    controls::TextField tfSortDestination02{u"tfSortDestination02"_qs};
    controls::TextField tfSortDestination03{u"tfSortDestination03"_qs};
    controls::TextField tfSortDestination04{u"tfSortDestination04"_qs};
    controls::TextField tfSortDestination05{u"tfSortDestination05"_qs};
    controls::TextField tfSortDestination06{u"tfSortDestination06"_qs};

    /// The albums of the photo library.
    controls::ArrayController theApplePhotosData{u"theApplePhotosData"_qs, {u"photosAlbumName"_qs}};
    controls::TableView myPhotosTableView{u"myPhotosTableView"_qs, theApplePhotosData};
    controls::TextField tfAddTitle{u"tfAddTitle"_qs};
    controls::TextField tfAddKeyword{u"tfAddKeyword"_qs};
    controls::TextField tfAddDescription{u"tfAddDescription"_qs};
    controls::CheckBox cbAddToFavorite{u"cbAddToFavorite"_qs, u"Mark as favourite"_qs};

private:
    [[nodiscard]] Layout manualPage();
    [[nodiscard]] Layout uploadPage();
};

} // namespace brenvaldo::panels
