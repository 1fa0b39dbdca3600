// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "layout.h"

#include <controls/text_controls.h>

namespace brenvaldo::panels {

/// The size of a crop as width and height.
struct CropSizeView : PanelView
{
    CropSizeView();

    controls::TextField tfCropWidth;
    controls::TextField tfCropHeight;
    controls::Button btnFlipCropWH;
};

/// The size of a crop as what is cut off.
struct CropMinusView : PanelView
{
    CropMinusView();

    controls::TextField tfCropCutOff;
};

/// The place of a crop.
struct CropPositionView : PanelView
{
    CropPositionView();

    controls::SegmentedControl scCropPosition;
    controls::TextField tfXcropOffset;
    controls::TextField tfYcropOffset;
    controls::Button btnFlipCropXY;
};

/// Cropping: the type, the fields of that type in the holder `dvVCUiCropTypeView`, and the place.
struct CropPanel : PanelView
{
    CropPanel();

    controls::PopUpButton pubCropType;
    controls::Holder dvVCUiCropTypeView;
    controls::Holder dvVCUiCropPlaceView;
    CropSizeView dvVCUiCropWxHView;
    CropMinusView dvVCUiCropMinusView;
    CropPositionView dvVCUiCropPositionView;
};

} // namespace brenvaldo::panels
