// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "layout.h"

#include <controls/color_well.h>
#include <controls/image_view.h>
#include <controls/range_controls.h>
#include <controls/text_controls.h>

namespace brenvaldo::panels {

/// The controls of the image watermark.
struct ImageWatermarkControls
{
    ImageWatermarkControls();

    controls::TextField tfWaterMarkImageFilePath;
    controls::ImageView iwWaterMarkImage;
    controls::PopUpButton pubImageLookUp;
    controls::CheckBox cbImageFromLib;

    controls::Matrix mxImageScaleProperty;
    controls::TextField tfImageScalePC;
    controls::TextField tfImageTransparancy;
    controls::PopUpButton pubRenderMethod;

    controls::SegmentedControl scImageWaterMarkPos;
    controls::TextField tfImageXOffset;
    controls::TextField tfImageYOffset;
    controls::TextField tfImageWMAngle;
    controls::CheckBox cbPatternCheck;

    controls::CheckBox cbImageShadowCheck;
    controls::TextField tfImageShadowXOffset;
    controls::TextField tfImageShadowYOffset;
    controls::TextField tfImageShadowRadius;
    controls::ColorWell cwImageShadowColor;

    controls::CheckBox cbImageFadeOut;
    controls::TextField tfImageFadeOutAngle;
    controls::Slider sliderFadeOutValue;
    controls::CheckBox cbCircularFadeOut;
    controls::CheckBox cbCircularInvertFadeOut;

    controls::PopUpButton pubWatermarkFilterType;
    controls::TextField tfWatermarkFilterSize;
    controls::PopUpButton pubWatermarkFilterSharpness;
    controls::TextField tfLineScreenAngle;
    controls::TextField tfCenterCircularWidth;
    controls::TextField tfCenterCircularHeight;

    controls::CheckBox cbWMSimulationMode;

    [[nodiscard]] Layout imageWatermarkPage();

private:
    void giveTags();
    void giveActions();
    void disableDependentControls();

    Layout imageRows();
    Layout scaleRows();
    Layout imagePlaceRows();
    Layout imageShadowRows();
    Layout fadeRows();
    Layout filterRows();
};

} // namespace brenvaldo::panels
