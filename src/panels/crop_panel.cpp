// SPDX-License-Identifier: GPL-3.0-or-later
#include "crop_panel.h"

#include "common_rows.h"
#include "field_roles.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::panels {

CropSizeView::CropSizeView()
    : PanelView(u"dvVCUiCropWxHView"_s)
{
    makeFunctionField(tfCropWidth, 71);
    makeFunctionField(tfCropHeight, 72);
    setLayout({
        {Row{.label = u"Width"_s, .fields = {{.control = &tfCropWidth, .unit = u"px"_s}}}},
        {Row{
            .label = u"Height"_s,
            .fields = {{.control = &tfCropHeight, .unit = u"px"_s}},
            .hint = u"Left empty, the photo keeps its size."_s}},
        {Row{.fields = {{.control = &btnFlipCropWH}}}},
    });
}

CropMinusView::CropMinusView()
    : PanelView(u"dvVCUiCropMinusView"_s)
{
    makeFunctionField(tfCropCutOff, 73);
    setLayout({
        {Row{
            .label = u"Cut off"_s,
            .fields
            = {{.control = &tfCropCutOff,
                .unit = u"% or px"_s,
                .accessibleName = u"Cut off, in percent or pixels"_s}}}},
    });
}

CropPositionView::CropPositionView()
    : PanelView(u"dvVCUiCropPositionView"_s)
{
    scCropPosition.addAction(u"cCollectionViewController.hCropPositionSegmentedControl"_s);
    makeFunctionField(tfXcropOffset, 74);
    makeFunctionField(tfYcropOffset, 75);
    setLayout({
        {Row{.label = u"Position"_s, .fields = {{.control = &scCropPosition}}}},
        {offsetRow(tfXcropOffset, tfYcropOffset, u"To the right, and down."_s)},
        {Row{.fields = {{.control = &btnFlipCropXY}}}},
    });
}

CropPanel::CropPanel()
    : PanelView(u"vwCropPhotos"_s)
{
    pubCropType.addAction(u"cGUIcontrols.hChooseCropTypeFunction"_s);
    dvVCUiCropTypeView.addView(dvVCUiCropWxHView.name());
    dvVCUiCropPlaceView.addView(dvVCUiCropPositionView.name());
    setLayout({
        {Row{.label = u"Crop by"_s, .fields = {{.control = &pubCropType}}}},
        {HolderPlace{.holder = &dvVCUiCropTypeView}},
        {HolderPlace{.holder = &dvVCUiCropPlaceView}},
    });
}

} // namespace brenvaldo::panels
