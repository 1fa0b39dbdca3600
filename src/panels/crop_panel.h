// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "common_titles.h"
#include "layout.h"

#include <controls/text_controls.h>

namespace brenvaldo::panels {

/// The size of a crop as width and height.
struct CropSizeView : PanelView
{
    CropSizeView();

    controls::TextField tfCropWidth{u"tfCropWidth"_qs};
    controls::TextField tfCropHeight{u"tfCropHeight"_qs};
    controls::Button btnFlipCropWH{
        u"btnFlipCropWH"_qs,
        u"Swap width and height"_qs,
        u"cCollectionViewController.hFlipCropWH"_qs};
};

/// The size of a crop as what is cut off.
struct CropMinusView : PanelView
{
    CropMinusView();

    controls::TextField tfCropCutOff{u"tfCropCutOff"_qs};
};

/// The place of a crop.
struct CropPositionView : PanelView
{
    CropPositionView();

    controls::SegmentedControl scCropPosition{
        u"scCropPosition"_qs,
        positionGridTitles(),
        4,
        controls::SegmentedControl::Look::PositionGrid};
    controls::TextField tfXcropOffset{u"tfXcropOffset"_qs};
    controls::TextField tfYcropOffset{u"tfYcropOffset"_qs};
    controls::Button btnFlipCropXY{
        u"btnFlipCropXY"_qs, u"Swap offsets"_qs, u"cCollectionViewController.hFlipCropXY"_qs};
};

/// Cropping: the type, the fields of that type in the holder `dvVCUiCropTypeView`, and the place.
struct CropPanel : PanelView
{
    CropPanel();

    controls::PopUpButton pubCropType{u"pubCropType"_qs, {u"W x H"_qs, u"%"_qs, u"px"_qs}};
    controls::Holder dvVCUiCropTypeView{u"dvVCUiCropTypeView"_qs};
    controls::Holder dvVCUiCropPlaceView{u"dvVCUiCropPlaceView"_qs};
    CropSizeView dvVCUiCropWxHView;
    CropMinusView dvVCUiCropMinusView;
    CropPositionView dvVCUiCropPositionView;
};

} // namespace brenvaldo::panels
