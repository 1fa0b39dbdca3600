// SPDX-License-Identifier: GPL-3.0-or-later
#include "crop_settings.h"

#include "dv_image_handling.h"

#include <panels/crop_panel.h>
#include <platform/foundation/numbers.h>

namespace brenvaldo::imaging {

CropSettings readSettings(const panels::CropPanel& panel)
{
    const panels::CropSizeView& size = panel.dvVCUiCropWxHView;
    const panels::CropPositionView& place = panel.dvVCUiCropPositionView;
    return {
        .size
        = {.width = platform::wrapped32(size.tfCropWidth.integerValue()),
           .height = platform::wrapped32(size.tfCropHeight.integerValue())},
        .cutOff = panel.dvVCUiCropMinusView.tfCropCutOff.integerValue(),
        .xOffset = place.tfXcropOffset.integerValue(),
        .yOffset = place.tfYcropOffset.integerValue(),
        .anchor = place.scCropPosition.selectedSegment(),
        .cropType = panel.pubCropType.titleOfSelectedItem()};
}

CropSettings readSettings(const panels::CropPanel& panel, const QString& path)
{
    CropSettings settings = readSettings(panel);
    if (settings.size.width == 0 || settings.size.height == 0)
        settings.size = DVImageHandling::hGetImgPixelSize(path);
    return settings;
}

} // namespace brenvaldo::imaging
