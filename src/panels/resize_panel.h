// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "layout.h"

#include <controls/text_controls.h>
#include <platform/foundation/literals.h>

namespace brenvaldo::panels {

/// The maximum mode of resizing: one number fixes one side or a percentage.
struct ScaleMaxView : PanelView
{
    ScaleMaxView();

    controls::PopUpButton pubScaleMaxType{
        u"pubScaleMaxType"_s, {u"Width"_s, u"Height"_s, u"Longest side"_s, u"Percentage"_s}, 2};
    controls::TextField tfScaleMaxVal{u"tfScaleMaxVal"_s};
};

/// The fixed mode of resizing: a box of width and height.
struct ScaleFixView : PanelView
{
    ScaleFixView();

    controls::TextField tfScaleFixWidth{u"tfScaleFixWidth"_s};
    controls::TextField tfScaleFixHeight{u"tfScaleFixHeight"_s};
    controls::Button btnFlipScaleFixWH{
        u"btnFlipScaleFixWH"_s,
        u"Swap width and height"_s,
        u"cCollectionViewController.hFlipScaleFixWH"_s};
    controls::CheckBox cbScaleAspectRatio{
        u"cbScaleAspectRatio"_s, u"Keep proportions, cut the excess"_s, 1};
};

/// Resizing: the mode, and the fields of that mode in the holder `dvVCUiResizeMainView`.
struct ResizePanel : PanelView
{
    ResizePanel();

    controls::PopUpButton pubScaleType{
        u"pubScaleType"_s, {u"One side or percentage"_s, u"Fixed width and height"_s}};
    controls::PopUpButton pubResizeType{u"pubResizeType"_s, {u"Resize"_s}};
    controls::Holder dvVCUiResizeMainView{u"dvVCUiResizeMainView"_s};
    ScaleMaxView dvVCUiScaleMaxView;
    ScaleFixView dvVCUiScaleFixView;
};

} // namespace brenvaldo::panels
