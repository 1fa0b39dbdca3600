// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "layout.h"

#include <controls/text_controls.h>

namespace brenvaldo::panels {

/// What the selected photo's file tells about itself, at the left of the window.
struct PhotoInfoPanel : PanelView
{
    PhotoInfoPanel();

    controls::TextField tfActiveFilePath{u"tfActiveFilePath"_qs};
    /// The property tree from the top down: depth from 0, name and value of each property.
    controls::ArrayController mTree{u"mTree"_qs, {u"depth"_qs, u"key"_qs, u"val"_qs}};
    controls::TableView myPropertyTreeView{u"myPropertyTreeView"_qs, mTree};
};

} // namespace brenvaldo::panels
