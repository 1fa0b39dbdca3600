// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "layout.h"

#include <controls/text_controls.h>

namespace brenvaldo::panels {

/// The maximum mode of resizing: one number fixes one side or a percentage.
struct ScaleMaxView : PanelView
{
    ScaleMaxView();

    controls::PopUpButton pubScaleMaxType;
    controls::TextField tfScaleMaxVal;
};

/// The fixed mode of resizing: a box of width and height.
struct ScaleFixView : PanelView
{
    ScaleFixView();

    controls::TextField tfScaleFixWidth;
    controls::TextField tfScaleFixHeight;
    controls::Button btnFlipScaleFixWH;
    controls::CheckBox cbScaleAspectRatio;
};

/// Resizing: the mode, and the fields of that mode in the holder `dvVCUiResizeMainView`.
struct ResizePanel : PanelView
{
    ResizePanel();

    controls::PopUpButton pubScaleType;
    controls::PopUpButton pubResizeType;
    controls::Holder dvVCUiResizeMainView;
    ScaleMaxView dvVCUiScaleMaxView;
    ScaleFixView dvVCUiScaleFixView;
};

} // namespace brenvaldo::panels
