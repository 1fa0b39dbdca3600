// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "layout.h"

#include <controls/text_controls.h>

namespace brenvaldo::panels {

/// What the selected photo's file tells about itself, at the left of the window.
struct PhotoInfoPanel : PanelView
{
    PhotoInfoPanel();

    controls::TextField tfActiveFilePath;
    /// The property tree from the top down: depth from 0, name and value of each property.
    controls::ArrayController mTree;
    controls::TableView myPropertyTreeView;
};

} // namespace brenvaldo::panels
