// SPDX-License-Identifier: GPL-3.0-or-later
#include "image_watermark_controls.h"

#include "common_titles.h"

#include <platform/foundation/literals.h>

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
             &tfCenterCircularHeight,
             &tfWaterMarkImageFilePath}) {
        field->setTag(tag++);
        field->addAction(endEditingAction());
    }
}

void ImageWatermarkControls::giveActions()
{
    iwWaterMarkImage.addAction(u"DVWatermark.hDropWatermarkImage"_s);
    mxImageScaleProperty.addAction(u"DVWatermark.hImageWatermarkSizeEntred"_s);
    pubRenderMethod.addAction(u"DVWatermark.hOpacityRenderMethodSelector"_s);
    scImageWaterMarkPos.addAction(u"DVWatermark.hImageWatermarkPositionSelector"_s);
    cbPatternCheck.addAction(u"DVWatermark.hImgPatternCheckBox"_s);
    cbImageShadowCheck.addAction(u"DVWatermark.hImageShadowCheckBox"_s);
    cwImageShadowColor.addAction(u"DVWatermark.hImageShadowColorEntred"_s);
    cbImageFadeOut.addAction(u"DVWatermark.hCheckFadeOutBox"_s);
    sliderFadeOutValue.addAction(u"DVWatermark.hSliderFadeOutImageSelector"_s);
    cbCircularFadeOut.addAction(u"DVWatermark.hCicularFadeOut"_s);
    cbCircularInvertFadeOut.addAction(u"DVWatermark.hCicularFadeOut"_s);
    pubWatermarkFilterType.addAction(u"DVWatermark.hChooseWatermarkFilterType"_s);
    tfWatermarkFilterSize.addAction(u"DVWatermark.hScreenSizeEntred"_s);
    pubWatermarkFilterSharpness.addAction(u"DVWatermark.hScreenSharpnessEntred"_s);
    cbWMSimulationMode.addAction(u"cGUIcontrols.hTxtSimulationModePressed"_s);
    cbWMSimulationMode.addAction(u"cGUIcontrols.hImgSimulationModePressed"_s);
}

Layout ImageWatermarkControls::imageRows()
{
    return {
        {Heading{u"Image"_s}},
        {Row{.label = u"Image"_s, .fields = {{.control = &tfWaterMarkImageFilePath}}}},
        {Row{
            .fields
            = {{.control = &iwWaterMarkImage, .accessibleName = u"The watermark image"_s}}}},
        {Row{
            .label = u"Look in"_s,
            .fields = {{.control = &pubImageLookUp}, {.control = &btnChooseWatermarkImage}}}},
        {Row{.fields = {{.control = &cbImageFromLib}}}},
        {Row{
            .label = u"Libraries"_s,
            .fields
            = {{.control = &btnImportWatermarkImages}, {.control = &btnImportPatternImages}}}},
    };
}

Layout ImageWatermarkControls::scaleRows()
{
    return {
        {Heading{u"Size and blending"_s}},
        {Row{.label = u"Measure"_s, .fields = {{.control = &mxImageScaleProperty}}}},
        {Row{.label = u"Scale"_s, .fields = {{.control = &tfImageScalePC, .unit = u"%"_s}}}},
        {Row{.label = u"Opacity"_s, .fields = {{.control = &tfImageTransparancy, .unit = u"%"_s}}}},
        {Row{.label = u"Blend"_s, .fields = {{.control = &pubRenderMethod}}}},
    };
}

Layout ImageWatermarkControls::imagePlaceRows()
{
    return {
        {Heading{u"Place"_s}},
        {Row{.label = u"Position"_s, .fields = {{.control = &scImageWaterMarkPos}}}},
        {Row{
            .label = u"Inset"_s,
            .fields
            = {{.control = &tfImageXOffset,
                .unit = u"px across"_s,
                .accessibleName = u"Inset from the side"_s},
               {.control = &tfImageYOffset,
                .unit = u"px down"_s,
                .accessibleName = u"Inset from the top or bottom"_s}},
            .hint = u"The gaps between the copies when the image is repeated."_s}},
        {Row{.label = u"Angle"_s, .fields = {{.control = &tfImageWMAngle, .unit = u"\u00b0"_s}}}},
        {Row{.fields = {{.control = &cbPatternCheck}}}},
    };
}

Layout ImageWatermarkControls::imageShadowRows()
{
    return {
        {Heading{u"Shadow"_s}},
        {Row{.fields = {{.control = &cbImageShadowCheck}}}},
        {Row{
            .label = u"Shift"_s,
            .fields
            = {{.control = &tfImageShadowXOffset,
                .unit = u"px right"_s,
                .accessibleName = u"Shift of the shadow to the right"_s},
               {.control = &tfImageShadowYOffset,
                .unit = u"px up"_s,
                .accessibleName = u"Shift of the shadow upward"_s}}}},
        {Row{
            .label = u"Softness"_s,
            .fields
            = {{.control = &tfImageShadowRadius,
                .unit = u"px"_s,
                .accessibleName = u"Softness of the shadow"_s},
               {.control = &cwImageShadowColor, .accessibleName = u"Colour of the shadow"_s}}}},
    };
}

Layout ImageWatermarkControls::fadeRows()
{
    return {
        {Heading{u"Fade"_s}},
        {Row{
            .fields
            = {{.control = &cbImageFadeOut},
               {.control = &cbCircularFadeOut},
               {.control = &cbCircularInvertFadeOut}}}},
        {Row{
            .label = u"Direction"_s,
            .fields = {{.control = &tfImageFadeOutAngle, .unit = u"\u00b0"_s}}}},
        {Row{.label = u"Extent"_s, .fields = {{.control = &sliderFadeOutValue}}}},
    };
}

Layout ImageWatermarkControls::filterRows()
{
    return {
        {Heading{u"Filter"_s}},
        {Row{.label = u"Filter"_s, .fields = {{.control = &pubWatermarkFilterType}}}},
        {Row{
            .label = u"Size"_s,
            .fields
            = {{.control = &tfWatermarkFilterSize,
                .unit = u"px"_s,
                .accessibleName = u"Size of the screen"_s},
               {.control = &pubWatermarkFilterSharpness,
                .accessibleName = u"Sharpness of the screen"_s}}}},
        {Row{
            .label = u"Angle"_s,
            .fields
            = {{.control = &tfLineScreenAngle,
                .unit = u"\u00b0"_s,
                .accessibleName = u"Angle of the screen"_s}}}},
        {Row{
            .label = u"Centre"_s,
            .fields
            = {{.control = &tfCenterCircularWidth,
                .unit = u"% width"_s,
                .accessibleName = u"Centre of the circles across"_s},
               {.control = &tfCenterCircularHeight,
                .unit = u"% height"_s,
                .accessibleName = u"Centre of the circles upward"_s}}}},
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
