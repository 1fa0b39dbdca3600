// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "layout.h"

#include <controls/text_controls.h>
#include <platform/foundation/literals.h>

namespace brenvaldo::panels {

/// What the selected photo's file tells about itself, at the left of the window.
struct PhotoInfoPanel : PanelView
{
    PhotoInfoPanel();

    controls::TextField tfActiveFilePath{u"tfActiveFilePath"_s};
    /// The property tree from the top down: depth from 0, name and value of each property.
    controls::ArrayController mTree{u"mTree"_s, {u"depth"_s, u"key"_s, u"val"_s}};
    controls::TableView myPropertyTreeView{u"myPropertyTreeView"_s, mTree};
};

} // namespace brenvaldo::panels
