// SPDX-License-Identifier: GPL-3.0-or-later
#include "image_watermark_controls.h"

#include "common_titles.h"

namespace brenvaldo::panels {

namespace {

constexpr int firstImageWatermarkTag = 300;

} // namespace

ImageWatermarkControls::ImageWatermarkControls()
{
    disableDependentControls();
    giveTags();
    giveActions();
}

void ImageWatermarkControls::disableDependentControls()
{
    for (controls::Control* control : std::initializer_list<controls::Control*>{
             &tfImageShadowXOffset,
             &tfImageShadowYOffset,
             &tfImageShadowRadius,
             &cwImageShadowColor,
             &tfImageFadeOutAngle,
             &sliderFadeOutValue,
             &cbCircularFadeOut,
             &cbCircularInvertFadeOut,
             &tfWatermarkFilterSize,
             &pubWatermarkFilterSharpness,
             &tfLineScreenAngle,
             &tfCenterCircularWidth,
             &tfCenterCircularHeight})
        control->setEnabled(false);
}

void ImageWatermarkControls::giveTags()
{
    int tag = firstImageWatermarkTag;
    for (controls::TextField* field : std::initializer_list<controls::TextField*>{
             &tfImageScalePC,
             &tfImageTransparancy,
             &tfImageXOffset,
             &tfImageYOffset,
             &tfImageWMAngle,
             &tfImageShadowXOffset,
             &tfImageShadowYOffset,
             &tfImageShadowRadius,
             &tfImageFadeOutAngle,
             &tfWatermarkFilterSize,
             &tfLineScreenAngle,
             &tfCenterCircularWidth,
             &tfCenterCircularHeight}) {
        field->setTag(tag++);
        field->addAction(endEditingAction());
    }
}

void ImageWatermarkControls::giveActions()
{
    mxImageScaleProperty.addAction(u"DVWatermark.hImageWatermarkSizeEntred"_qs);
    pubRenderMethod.addAction(u"DVWatermark.hOpacityRenderMethodSelector"_qs);
    scImageWaterMarkPos.addAction(u"DVWatermark.hImageWatermarkPositionSelector"_qs);
    cbPatternCheck.addAction(u"DVWatermark.hImgPatternCheckBox"_qs);
    cbImageShadowCheck.addAction(u"DVWatermark.hImageShadowCheckBox"_qs);
    cwImageShadowColor.addAction(u"DVWatermark.hImageShadowColorEntred"_qs);
    cbImageFadeOut.addAction(u"DVWatermark.hCheckFadeOutBox"_qs);
    sliderFadeOutValue.addAction(u"DVWatermark.hSliderFadeOutImageSelector"_qs);
    cbCircularFadeOut.addAction(u"DVWatermark.hCicularFadeOut"_qs);
    cbCircularInvertFadeOut.addAction(u"DVWatermark.hCicularFadeOut"_qs);
    pubWatermarkFilterType.addAction(u"DVWatermark.hChooseWatermarkFilterType"_qs);
    tfWatermarkFilterSize.addAction(u"DVWatermark.hScreenSizeEntred"_qs);
    pubWatermarkFilterSharpness.addAction(u"DVWatermark.hScreenSharpnessEntred"_qs);
    cbWMSimulationMode.addAction(u"cGUIcontrols.hTxtSimulationModePressed"_qs);
    cbWMSimulationMode.addAction(u"cGUIcontrols.hImgSimulationModePressed"_qs);
}

Layout ImageWatermarkControls::imageRows()
{
    return {
        {Heading{u"Image"_qs}},
        {Row{.label = u"Image"_qs, .fields = {{.control = &tfWaterMarkImageFilePath}}}},
        {Row{
            .fields
            = {{.control = &iwWaterMarkImage, .accessibleName = u"The watermark image"_qs}}}},
        {Row{.label = u"Look in"_qs, .fields = {{.control = &pubImageLookUp}}}},
        {Row{.fields = {{.control = &cbImageFromLib}}}},
    };
}

Layout ImageWatermarkControls::scaleRows()
{
    return {
        {Heading{u"Size and blending"_qs}},
        {Row{.label = u"Measure"_qs, .fields = {{.control = &mxImageScaleProperty}}}},
        {Row{.label = u"Scale"_qs, .fields = {{.control = &tfImageScalePC, .unit = u"%"_qs}}}},
        {Row{
            .label = u"Opacity"_qs,
            .fields = {{.control = &tfImageTransparancy, .unit = u"%"_qs}}}},
        {Row{.label = u"Blend"_qs, .fields = {{.control = &pubRenderMethod}}}},
    };
}

Layout ImageWatermarkControls::imagePlaceRows()
{
    return {
        {Heading{u"Place"_qs}},
        {Row{.label = u"Position"_qs, .fields = {{.control = &scImageWaterMarkPos}}}},
        {Row{
            .label = u"Inset"_qs,
            .fields
            = {{.control = &tfImageXOffset,
                .unit = u"px across"_qs,
                .accessibleName = u"Inset from the side"_qs},
               {.control = &tfImageYOffset,
                .unit = u"px down"_qs,
                .accessibleName = u"Inset from the top or bottom"_qs}},
            .hint = u"The gaps between the copies when the image is repeated."_qs}},
        {Row{.label = u"Angle"_qs, .fields = {{.control = &tfImageWMAngle, .unit = u"\u00b0"_qs}}}},
        {Row{.fields = {{.control = &cbPatternCheck}}}},
    };
}

Layout ImageWatermarkControls::imageShadowRows()
{
    return {
        {Heading{u"Shadow"_qs}},
        {Row{.fields = {{.control = &cbImageShadowCheck}}}},
        {Row{
            .label = u"Shift"_qs,
            .fields
            = {{.control = &tfImageShadowXOffset,
                .unit = u"px right"_qs,
                .accessibleName = u"Shift of the shadow to the right"_qs},
               {.control = &tfImageShadowYOffset,
                .unit = u"px up"_qs,
                .accessibleName = u"Shift of the shadow upward"_qs}}}},
        {Row{
            .label = u"Softness"_qs,
            .fields
            = {{.control = &tfImageShadowRadius,
                .unit = u"px"_qs,
                .accessibleName = u"Softness of the shadow"_qs},
               {.control = &cwImageShadowColor, .accessibleName = u"Colour of the shadow"_qs}}}},
    };
}

Layout ImageWatermarkControls::fadeRows()
{
    return {
        {Heading{u"Fade"_qs}},
        {Row{
            .fields
            = {{.control = &cbImageFadeOut},
               {.control = &cbCircularFadeOut},
               {.control = &cbCircularInvertFadeOut}}}},
        {Row{
            .label = u"Direction"_qs,
            .fields = {{.control = &tfImageFadeOutAngle, .unit = u"\u00b0"_qs}}}},
        {Row{.label = u"Extent"_qs, .fields = {{.control = &sliderFadeOutValue}}}},
    };
}

Layout ImageWatermarkControls::filterRows()
{
    return {
        {Heading{u"Filter"_qs}},
        {Row{.label = u"Filter"_qs, .fields = {{.control = &pubWatermarkFilterType}}}},
        {Row{
            .label = u"Size"_qs,
            .fields
            = {{.control = &tfWatermarkFilterSize,
                .unit = u"px"_qs,
                .accessibleName = u"Size of the screen"_qs},
               {.control = &pubWatermarkFilterSharpness,
                .accessibleName = u"Sharpness of the screen"_qs}}}},
        {Row{
            .label = u"Angle"_qs,
            .fields
            = {{.control = &tfLineScreenAngle,
                .unit = u"\u00b0"_qs,
                .accessibleName = u"Angle of the screen"_qs}}}},
        {Row{
            .label = u"Centre"_qs,
            .fields
            = {{.control = &tfCenterCircularWidth,
                .unit = u"% width"_qs,
                .accessibleName = u"Centre of the circles across"_qs},
               {.control = &tfCenterCircularHeight,
                .unit = u"% height"_qs,
                .accessibleName = u"Centre of the circles upward"_qs}}}},
    };
}

Layout ImageWatermarkControls::imageWatermarkPage()
{
    return joined(
        {imageRows(),
         scaleRows(),
         imagePlaceRows(),
         imageShadowRows(),
         fadeRows(),
         filterRows(),
         {{Row{.fields = {{.control = &cbWMSimulationMode}}}}}}
    );
}

} // namespace brenvaldo::panels
