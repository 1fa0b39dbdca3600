// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "layout.h"

#include <controls/text_controls.h>

namespace brenvaldo::panels {

/// The maximum mode of resizing: one number fixes one side or a percentage.
struct ScaleMaxView : PanelView
{
    ScaleMaxView();

    controls::PopUpButton pubScaleMaxType{
        u"pubScaleMaxType"_qs,
        {u"Width"_qs, u"Height"_qs, u"Longest side"_qs, u"Percentage"_qs},
        2};
    controls::TextField tfScaleMaxVal{u"tfScaleMaxVal"_qs};
};

/// The fixed mode of resizing: a box of width and height.
struct ScaleFixView : PanelView
{
    ScaleFixView();

    controls::TextField tfScaleFixWidth{u"tfScaleFixWidth"_qs};
    controls::TextField tfScaleFixHeight{u"tfScaleFixHeight"_qs};
    controls::Button btnFlipScaleFixWH{
        u"btnFlipScaleFixWH"_qs,
        u"Swap width and height"_qs,
        u"cCollectionViewController.hFlipScaleFixWH"_qs};
    controls::CheckBox cbScaleAspectRatio{
        u"cbScaleAspectRatio"_qs, u"Keep proportions, cut the excess"_qs, 1};
};

/// Resizing: the mode, and the fields of that mode in the holder `dvVCUiResizeMainView`.
struct ResizePanel : PanelView
{
    ResizePanel();

    controls::PopUpButton pubScaleType{
        u"pubScaleType"_qs, {u"One side or percentage"_qs, u"Fixed width and height"_qs}};
    controls::PopUpButton pubResizeType{u"pubResizeType"_qs, {u"Resize"_qs}};
    controls::Holder dvVCUiResizeMainView{u"dvVCUiResizeMainView"_qs};
    ScaleMaxView dvVCUiScaleMaxView;
    ScaleFixView dvVCUiScaleFixView;
};

} // namespace brenvaldo::panels
