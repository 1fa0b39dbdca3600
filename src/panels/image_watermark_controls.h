// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "common_titles.h"
#include "layout.h"
#include "pattern_image_controls.h"

#include <controls/color_well.h>
#include <controls/image_view.h>
#include <controls/range_controls.h>
#include <controls/text_controls.h>
#include <platform/foundation/literals.h>

namespace brenvaldo::panels {

/// The controls of the image watermark.
struct ImageWatermarkControls
{
    ImageWatermarkControls();

    controls::TextField tfWaterMarkImageFilePath{u"tfWaterMarkImageFilePath"_s};
    controls::ImageView iwWaterMarkImage{u"iwWaterMarkImage"_s};
    controls::PopUpButton pubImageLookUp{u"pubImageLookUp"_s, imageLookUpTitles()};
    controls::Button btnChooseWatermarkImage{
        u"btnChooseWatermarkImage"_s,
        u"Choose Image\u2026"_s,
        u"DVWatermark.hChooseWatermarkImage"_s};
    controls::Button btnImportWatermarkImages{
        u"btnImportWatermarkImages"_s,
        u"Add Images\u2026"_s,
        u"DVWatermark.hImportWatermarkImages"_s};
    controls::Button btnImportPatternImages{
        u"btnImportPatternImages"_s,
        u"Add Patterns\u2026"_s,
        u"DVWatermark.hImportPatternImages"_s};
    controls::CheckBox cbImageFromLib{u"cbImageFromLib"_s, u"Image from the library"_s};

    controls::Matrix mxImageScaleProperty{
        u"mxImageScaleProperty"_s,
        {
            u"% of the image"_s,
            u"% of the photo's width"_s,
            u"% of the photo's height"_s,
            u"The image's own size"_s,
        }};
    controls::TextField tfImageScalePC{u"tfImageScalePC"_s, u"100"_s};
    controls::TextField tfImageTransparancy{u"tfImageTransparancy"_s, u"100"_s};
    controls::PopUpButton pubRenderMethod{
        u"pubRenderMethod"_s,
        {
            u"Normal"_s,
            u"Add, darker"_s,
            u"Add, lighter"_s,
            u"Multiply"_s,
            u"Difference"_s,
            u"Colour dodge"_s,
            u"Luminosity"_s,
            u"Colour"_s,
            u"Exclusion"_s,
            u"Colour burn"_s,
            u"Soft light"_s,
        }};

    controls::SegmentedControl scImageWaterMarkPos{
        u"scImageWaterMarkPos"_s,
        positionGridTitles(),
        8,
        controls::SegmentedControl::Look::PositionGrid};
    controls::TextField tfImageXOffset{u"tfImageXOffset"_s, u"0"_s};
    controls::TextField tfImageYOffset{u"tfImageYOffset"_s, u"0"_s};
    controls::TextField tfImageWMAngle{u"tfImageWMAngle"_s, u"0"_s};
    controls::CheckBox cbPatternCheck{u"cbPatternCheck"_s, u"Repeat over the whole photo"_s};

    controls::CheckBox cbImageShadowCheck{u"cbImageShadowCheck"_s, u"Cast a shadow"_s};
    controls::TextField tfImageShadowXOffset{u"tfImageShadowXOffset"_s, u"2"_s};
    controls::TextField tfImageShadowYOffset{u"tfImageShadowYOffset"_s, u"-2"_s};
    controls::TextField tfImageShadowRadius{u"tfImageShadowRadius"_s, u"4"_s};
    controls::ColorWell cwImageShadowColor{u"cwImageShadowColor"_s};

    controls::CheckBox cbImageFadeOut{u"cbImageFadeOut"_s, u"Fade out"_s};
    controls::TextField tfImageFadeOutAngle{u"tfImageFadeOutAngle"_s, u"0"_s};
    controls::Slider sliderFadeOutValue{
        u"sliderFadeOutValue"_s, 0.0, 1.0, 0.5, controls::Slider::Look::FadeStrip};
    controls::CheckBox cbCircularFadeOut{u"cbCircularFadeOut"_s, u"Circular"_s};
    controls::CheckBox cbCircularInvertFadeOut{u"cbCircularInvertFadeOut"_s, u"From the middle"_s};

    controls::PopUpButton pubWatermarkFilterType{
        u"pubWatermarkFilterType"_s,
        {
            u"None"_s,
            u"Black and white"_s,
            u"Negative"_s,
            u"Dots"_s,
            u"Lines"_s,
            u"Circles"_s,
        }};
    controls::TextField tfWatermarkFilterSize{u"tfWatermarkFilterSize"_s, u"6"_s};
    controls::PopUpButton pubWatermarkFilterSharpness{
        u"pubWatermarkFilterSharpness"_s, {u"Soft"_s, u"Sharp"_s}};
    controls::TextField tfLineScreenAngle{u"tfLineScreenAngle"_s, u"0"_s};
    controls::TextField tfCenterCircularWidth{u"tfCenterCircularWidth"_s, u"50"_s};
    controls::TextField tfCenterCircularHeight{u"tfCenterCircularHeight"_s, u"50"_s};

    controls::CheckBox cbWMSimulationMode{u"cbWMSimulationMode"_s, u"Simulation"_s};

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
