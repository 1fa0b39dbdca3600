// SPDX-License-Identifier: GPL-3.0-or-later
#include "crop_panel.h"

#include "common_rows.h"
#include "field_roles.h"

namespace brenvaldo::panels {

CropSizeView::CropSizeView()
    : PanelView(u"dvVCUiCropWxHView"_qs)
{
    makeFunctionField(tfCropWidth, 71);
    makeFunctionField(tfCropHeight, 72);
    setLayout({
        {Row{.label = u"Width"_qs, .fields = {{.control = &tfCropWidth, .unit = u"px"_qs}}}},
        {Row{
            .label = u"Height"_qs,
            .fields = {{.control = &tfCropHeight, .unit = u"px"_qs}},
            .hint = u"Left empty, the photo keeps its size."_qs}},
        {Row{.fields = {{.control = &btnFlipCropWH}}}},
    });
}

CropMinusView::CropMinusView()
    : PanelView(u"dvVCUiCropMinusView"_qs)
{
    makeFunctionField(tfCropCutOff, 73);
    setLayout({
        {Row{
            .label = u"Cut off"_qs,
            .fields
            = {{.control = &tfCropCutOff,
                .unit = u"% or px"_qs,
                .accessibleName = u"Cut off, in percent or pixels"_qs}}}},
    });
}

CropPositionView::CropPositionView()
    : PanelView(u"dvVCUiCropPositionView"_qs)
{
    scCropPosition.addAction(u"cCollectionViewController.hCropPositionSegmentedControl"_qs);
    makeFunctionField(tfXcropOffset, 74);
    makeFunctionField(tfYcropOffset, 75);
    setLayout({
        {Row{.label = u"Position"_qs, .fields = {{.control = &scCropPosition}}}},
        {offsetRow(tfXcropOffset, tfYcropOffset, u"To the right, and down."_qs)},
        {Row{.fields = {{.control = &btnFlipCropXY}}}},
    });
}

CropPanel::CropPanel()
    : PanelView(u"vwCropPhotos"_qs)
{
    pubCropType.addAction(u"cGUIcontrols.hChooseCropTypeFunction"_qs);
    dvVCUiCropTypeView.addView(dvVCUiCropWxHView.name());
    dvVCUiCropPlaceView.addView(dvVCUiCropPositionView.name());
    setLayout({
        {Row{.label = u"Crop by"_qs, .fields = {{.control = &pubCropType}}}},
        {HolderPlace{.holder = &dvVCUiCropTypeView}},
        {HolderPlace{.holder = &dvVCUiCropPlaceView}},
    });
}

} // namespace brenvaldo::panels
