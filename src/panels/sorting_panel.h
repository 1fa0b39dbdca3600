// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "layout.h"

#include <controls/text_controls.h>

namespace brenvaldo::panels {

/// Sorting by hand, sorting by criteria, and the upload into the photo library, each on a tab.
struct SortingPanel : PanelView
{
    SortingPanel();

    controls::TabView mySortTabView;

    controls::TextField tfSortDestination01;
    controls::TextField tfSortDestination02;
    controls::TextField tfSortDestination03;
    controls::TextField tfSortDestination04;
    controls::TextField tfSortDestination05;
    controls::TextField tfSortDestination06;

    controls::ArrayController theApplePhotosData; ///< the albums of the photo library
    controls::TableView myPhotosTableView;
    controls::TextField tfAddTitle;
    controls::TextField tfAddKeyword;
    controls::TextField tfAddDescription;
    controls::CheckBox cbAddToFavorite;

private:
    [[nodiscard]] Layout manualPage();
    [[nodiscard]] Layout uploadPage();
};

} // namespace brenvaldo::panels
