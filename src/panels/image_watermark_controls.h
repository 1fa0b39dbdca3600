// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "common_titles.h"
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

    controls::TextField tfWaterMarkImageFilePath{u"tfWaterMarkImageFilePath"_qs};
    controls::ImageView iwWaterMarkImage{u"iwWaterMarkImage"_qs};
    controls::PopUpButton pubImageLookUp{
        u"pubImageLookUp"_qs, {u"Last folder"_qs, u"Watermark library"_qs, u"Pattern library"_qs}};
    controls::CheckBox cbImageFromLib{u"cbImageFromLib"_qs, u"Image from the library"_qs};

    controls::Matrix mxImageScaleProperty{
        u"mxImageScaleProperty"_qs,
        {
            u"% of the image"_qs,
            u"% of the photo's width"_qs,
            u"% of the photo's height"_qs,
            u"The image's own size"_qs,
        }};
    controls::TextField tfImageScalePC{u"tfImageScalePC"_qs, u"100"_qs};
    controls::TextField tfImageTransparancy{u"tfImageTransparancy"_qs, u"100"_qs};
    controls::PopUpButton pubRenderMethod{
        u"pubRenderMethod"_qs,
        {
            u"Normal"_qs,
            u"Add, darker"_qs,
            u"Add, lighter"_qs,
            u"Multiply"_qs,
            u"Difference"_qs,
            u"Colour dodge"_qs,
            u"Luminosity"_qs,
            u"Colour"_qs,
            u"Exclusion"_qs,
            u"Colour burn"_qs,
            u"Soft light"_qs,
        }};

    controls::SegmentedControl scImageWaterMarkPos{
        u"scImageWaterMarkPos"_qs,
        positionGridTitles(),
        8,
        controls::SegmentedControl::Look::PositionGrid};
    controls::TextField tfImageXOffset{u"tfImageXOffset"_qs, u"0"_qs};
    controls::TextField tfImageYOffset{u"tfImageYOffset"_qs, u"0"_qs};
    controls::TextField tfImageWMAngle{u"tfImageWMAngle"_qs, u"0"_qs};
    controls::CheckBox cbPatternCheck{u"cbPatternCheck"_qs, u"Repeat over the whole photo"_qs};

    controls::CheckBox cbImageShadowCheck{u"cbImageShadowCheck"_qs, u"Cast a shadow"_qs};
    controls::TextField tfImageShadowXOffset{u"tfImageShadowXOffset"_qs, u"2"_qs};
    controls::TextField tfImageShadowYOffset{u"tfImageShadowYOffset"_qs, u"-2"_qs};
    controls::TextField tfImageShadowRadius{u"tfImageShadowRadius"_qs, u"4"_qs};
    controls::ColorWell cwImageShadowColor{u"cwImageShadowColor"_qs};

    controls::CheckBox cbImageFadeOut{u"cbImageFadeOut"_qs, u"Fade out"_qs};
    controls::TextField tfImageFadeOutAngle{u"tfImageFadeOutAngle"_qs, u"0"_qs};
    controls::Slider sliderFadeOutValue{u"sliderFadeOutValue"_qs, 0.0, 1.0, 0.5};
    controls::CheckBox cbCircularFadeOut{u"cbCircularFadeOut"_qs, u"Circular"_qs};
    controls::CheckBox cbCircularInvertFadeOut{
        u"cbCircularInvertFadeOut"_qs, u"From the middle"_qs};

    controls::PopUpButton pubWatermarkFilterType{
        u"pubWatermarkFilterType"_qs,
        {
            u"None"_qs,
            u"Black and white"_qs,
            u"Negative"_qs,
            u"Dots"_qs,
            u"Lines"_qs,
            u"Circles"_qs,
        }};
    controls::TextField tfWatermarkFilterSize{u"tfWatermarkFilterSize"_qs, u"6"_qs};
    controls::PopUpButton pubWatermarkFilterSharpness{
        u"pubWatermarkFilterSharpness"_qs, {u"Soft"_qs, u"Sharp"_qs}};
    controls::TextField tfLineScreenAngle{u"tfLineScreenAngle"_qs, u"0"_qs};
    controls::TextField tfCenterCircularWidth{u"tfCenterCircularWidth"_qs, u"50"_qs};
    controls::TextField tfCenterCircularHeight{u"tfCenterCircularHeight"_qs, u"50"_qs};

    controls::CheckBox cbWMSimulationMode{u"cbWMSimulationMode"_qs, u"Simulation"_qs};

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
