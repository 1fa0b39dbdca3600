// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "common_titles.h"
#include "layout.h"

#include <controls/text_controls.h>
#include <platform/foundation/literals.h>

namespace brenvaldo::panels {

/// The size of a crop as width and height.
struct CropSizeView : PanelView
{
    CropSizeView();

    controls::TextField tfCropWidth{u"tfCropWidth"_s};
    controls::TextField tfCropHeight{u"tfCropHeight"_s};
    controls::Button btnFlipCropWH{
        u"btnFlipCropWH"_s, u"Swap width and height"_s, u"cCollectionViewController.hFlipCropWH"_s};
};

/// The size of a crop as what is cut off.
struct CropMinusView : PanelView
{
    CropMinusView();

    controls::TextField tfCropCutOff{u"tfCropCutOff"_s};
};

/// The place of a crop.
struct CropPositionView : PanelView
{
    CropPositionView();

    controls::SegmentedControl scCropPosition{
        u"scCropPosition"_s,
        positionGridTitles(),
        4,
        controls::SegmentedControl::Look::PositionGrid};
    controls::TextField tfXcropOffset{u"tfXcropOffset"_s};
    controls::TextField tfYcropOffset{u"tfYcropOffset"_s};
    controls::Button btnFlipCropXY{
        u"btnFlipCropXY"_s, u"Swap offsets"_s, u"cCollectionViewController.hFlipCropXY"_s};
};

/// Cropping: the type, the fields of that type in the holder `dvVCUiCropTypeView`, and the place.
struct CropPanel : PanelView
{
    CropPanel();

    controls::PopUpButton pubCropType{u"pubCropType"_s, {u"W x H"_s, u"%"_s, u"px"_s}};
    controls::Holder dvVCUiCropTypeView{u"dvVCUiCropTypeView"_s};
    controls::Holder dvVCUiCropPlaceView{u"dvVCUiCropPlaceView"_s};
    CropSizeView dvVCUiCropWxHView;
    CropMinusView dvVCUiCropMinusView;
    CropPositionView dvVCUiCropPositionView;
};

} // namespace brenvaldo::panels
