// SPDX-License-Identifier: GPL-3.0-or-later
#include "image_watermark_controls.h"

#include "common_titles.h"

namespace brenvaldo::panels {

namespace {

constexpr int firstImageWatermarkTag = 300;

QStringList renderMethodTitles()
{
    return {
        QStringLiteral("Normal"),
        QStringLiteral("Add, darker"),
        QStringLiteral("Add, lighter"),
        QStringLiteral("Multiply"),
        QStringLiteral("Difference"),
        QStringLiteral("Colour dodge"),
        QStringLiteral("Luminosity"),
        QStringLiteral("Colour"),
        QStringLiteral("Exclusion"),
        QStringLiteral("Colour burn"),
        QStringLiteral("Soft light"),
    };
}

QStringList filterTitles()
{
    return {
        QStringLiteral("None"),
        QStringLiteral("Black and white"),
        QStringLiteral("Negative"),
        QStringLiteral("Dots"),
        QStringLiteral("Lines"),
        QStringLiteral("Circles"),
    };
}

QStringList scaleTitles()
{
    return {
        QStringLiteral("% of the image"),
        QStringLiteral("% of the photo's width"),
        QStringLiteral("% of the photo's height"),
        QStringLiteral("The image's own size"),
    };
}

} // namespace

ImageWatermarkControls::ImageWatermarkControls()
    : tfWaterMarkImageFilePath(QStringLiteral("tfWaterMarkImageFilePath"))
    , iwWaterMarkImage(QStringLiteral("iwWaterMarkImage"))
    , pubImageLookUp(
          QStringLiteral("pubImageLookUp"),
          {QStringLiteral("Last folder"),
           QStringLiteral("Watermark library"),
           QStringLiteral("Pattern library")}
      )
    , cbImageFromLib(QStringLiteral("cbImageFromLib"), QStringLiteral("Image from the library"))
    , mxImageScaleProperty(QStringLiteral("mxImageScaleProperty"), scaleTitles())
    , tfImageScalePC(QStringLiteral("tfImageScalePC"), QStringLiteral("100"))
    , tfImageTransparancy(QStringLiteral("tfImageTransparancy"), QStringLiteral("100"))
    , pubRenderMethod(QStringLiteral("pubRenderMethod"), renderMethodTitles())
    , scImageWaterMarkPos(
          QStringLiteral("scImageWaterMarkPos"),
          positionGridTitles(),
          8,
          controls::SegmentedControl::Look::PositionGrid
      )
    , tfImageXOffset(QStringLiteral("tfImageXOffset"), QStringLiteral("0"))
    , tfImageYOffset(QStringLiteral("tfImageYOffset"), QStringLiteral("0"))
    , tfImageWMAngle(QStringLiteral("tfImageWMAngle"), QStringLiteral("0"))
    , cbPatternCheck(
          QStringLiteral("cbPatternCheck"), QStringLiteral("Repeat over the whole photo")
      )
    , cbImageShadowCheck(QStringLiteral("cbImageShadowCheck"), QStringLiteral("Cast a shadow"))
    , tfImageShadowXOffset(QStringLiteral("tfImageShadowXOffset"), QStringLiteral("2"))
    , tfImageShadowYOffset(QStringLiteral("tfImageShadowYOffset"), QStringLiteral("-2"))
    , tfImageShadowRadius(QStringLiteral("tfImageShadowRadius"), QStringLiteral("4"))
    , cwImageShadowColor(QStringLiteral("cwImageShadowColor"))
    , cbImageFadeOut(QStringLiteral("cbImageFadeOut"), QStringLiteral("Fade out"))
    , tfImageFadeOutAngle(QStringLiteral("tfImageFadeOutAngle"), QStringLiteral("0"))
    , sliderFadeOutValue(QStringLiteral("sliderFadeOutValue"), 0.0, 1.0, 0.5)
    , cbCircularFadeOut(QStringLiteral("cbCircularFadeOut"), QStringLiteral("Circular"))
    , cbCircularInvertFadeOut(
          QStringLiteral("cbCircularInvertFadeOut"), QStringLiteral("From the middle")
      )
    , pubWatermarkFilterType(QStringLiteral("pubWatermarkFilterType"), filterTitles())
    , tfWatermarkFilterSize(QStringLiteral("tfWatermarkFilterSize"), QStringLiteral("6"))
    , pubWatermarkFilterSharpness(
          QStringLiteral("pubWatermarkFilterSharpness"),
          {QStringLiteral("Soft"), QStringLiteral("Sharp")}
      )
    , tfLineScreenAngle(QStringLiteral("tfLineScreenAngle"), QStringLiteral("0"))
    , tfCenterCircularWidth(QStringLiteral("tfCenterCircularWidth"), QStringLiteral("50"))
    , tfCenterCircularHeight(QStringLiteral("tfCenterCircularHeight"), QStringLiteral("50"))
    , cbWMSimulationMode(QStringLiteral("cbWMSimulationMode"), QStringLiteral("Simulation"))
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
    mxImageScaleProperty.addAction(QStringLiteral("DVWatermark.hImageWatermarkSizeEntred"));
    pubRenderMethod.addAction(QStringLiteral("DVWatermark.hOpacityRenderMethodSelector"));
    scImageWaterMarkPos.addAction(QStringLiteral("DVWatermark.hImageWatermarkPositionSelector"));
    cbPatternCheck.addAction(QStringLiteral("DVWatermark.hImgPatternCheckBox"));
    cbImageShadowCheck.addAction(QStringLiteral("DVWatermark.hImageShadowCheckBox"));
    cwImageShadowColor.addAction(QStringLiteral("DVWatermark.hImageShadowColorEntred"));
    cbImageFadeOut.addAction(QStringLiteral("DVWatermark.hCheckFadeOutBox"));
    sliderFadeOutValue.addAction(QStringLiteral("DVWatermark.hSliderFadeOutImageSelector"));
    cbCircularFadeOut.addAction(QStringLiteral("DVWatermark.hCicularFadeOut"));
    cbCircularInvertFadeOut.addAction(QStringLiteral("DVWatermark.hCicularFadeOut"));
    pubWatermarkFilterType.addAction(QStringLiteral("DVWatermark.hChooseWatermarkFilterType"));
    tfWatermarkFilterSize.addAction(QStringLiteral("DVWatermark.hScreenSizeEntred"));
    pubWatermarkFilterSharpness.addAction(QStringLiteral("DVWatermark.hScreenSharpnessEntred"));
    cbWMSimulationMode.addAction(QStringLiteral("cGUIcontrols.hTxtSimulationModePressed"));
    cbWMSimulationMode.addAction(QStringLiteral("cGUIcontrols.hImgSimulationModePressed"));
}

Layout ImageWatermarkControls::imageRows()
{
    return {
        {Heading{QStringLiteral("Image")}},
        {Row{.label = QStringLiteral("Image"), .fields = {{.control = &tfWaterMarkImageFilePath}}}},
        {Row{
            .fields
            = {{.control = &iwWaterMarkImage,
                .accessibleName = QStringLiteral("The watermark image")}}}},
        {Row{.label = QStringLiteral("Look in"), .fields = {{.control = &pubImageLookUp}}}},
        {Row{.fields = {{.control = &cbImageFromLib}}}},
    };
}

Layout ImageWatermarkControls::scaleRows()
{
    return {
        {Heading{QStringLiteral("Size and blending")}},
        {Row{.label = QStringLiteral("Measure"), .fields = {{.control = &mxImageScaleProperty}}}},
        {Row{
            .label = QStringLiteral("Scale"),
            .fields = {{.control = &tfImageScalePC, .unit = QStringLiteral("%")}}}},
        {Row{
            .label = QStringLiteral("Opacity"),
            .fields = {{.control = &tfImageTransparancy, .unit = QStringLiteral("%")}}}},
        {Row{.label = QStringLiteral("Blend"), .fields = {{.control = &pubRenderMethod}}}},
    };
}

Layout ImageWatermarkControls::imagePlaceRows()
{
    return {
        {Heading{QStringLiteral("Place")}},
        {Row{.label = QStringLiteral("Position"), .fields = {{.control = &scImageWaterMarkPos}}}},
        {Row{
            .label = QStringLiteral("Inset"),
            .fields
            = {{.control = &tfImageXOffset,
                .unit = QStringLiteral("px across"),
                .accessibleName = QStringLiteral("Inset from the side")},
               {.control = &tfImageYOffset,
                .unit = QStringLiteral("px down"),
                .accessibleName = QStringLiteral("Inset from the top or bottom")}},
            .hint = QStringLiteral("The gaps between the copies when the image is repeated.")}},
        {Row{
            .label = QStringLiteral("Angle"),
            .fields = {{.control = &tfImageWMAngle, .unit = QStringLiteral("\u00b0")}}}},
        {Row{.fields = {{.control = &cbPatternCheck}}}},
    };
}

Layout ImageWatermarkControls::imageShadowRows()
{
    return {
        {Heading{QStringLiteral("Shadow")}},
        {Row{.fields = {{.control = &cbImageShadowCheck}}}},
        {Row{
            .label = QStringLiteral("Shift"),
            .fields
            = {{.control = &tfImageShadowXOffset,
                .unit = QStringLiteral("px right"),
                .accessibleName = QStringLiteral("Shift of the shadow to the right")},
               {.control = &tfImageShadowYOffset,
                .unit = QStringLiteral("px up"),
                .accessibleName = QStringLiteral("Shift of the shadow upward")}}}},
        {Row{
            .label = QStringLiteral("Softness"),
            .fields
            = {{.control = &tfImageShadowRadius,
                .unit = QStringLiteral("px"),
                .accessibleName = QStringLiteral("Softness of the shadow")},
               {.control = &cwImageShadowColor,
                .accessibleName = QStringLiteral("Colour of the shadow")}}}},
    };
}

Layout ImageWatermarkControls::fadeRows()
{
    return {
        {Heading{QStringLiteral("Fade")}},
        {Row{
            .fields
            = {{.control = &cbImageFadeOut},
               {.control = &cbCircularFadeOut},
               {.control = &cbCircularInvertFadeOut}}}},
        {Row{
            .label = QStringLiteral("Direction"),
            .fields = {{.control = &tfImageFadeOutAngle, .unit = QStringLiteral("\u00b0")}}}},
        {Row{.label = QStringLiteral("Extent"), .fields = {{.control = &sliderFadeOutValue}}}},
    };
}

Layout ImageWatermarkControls::filterRows()
{
    return {
        {Heading{QStringLiteral("Filter")}},
        {Row{.label = QStringLiteral("Filter"), .fields = {{.control = &pubWatermarkFilterType}}}},
        {Row{
            .label = QStringLiteral("Size"),
            .fields
            = {{.control = &tfWatermarkFilterSize,
                .unit = QStringLiteral("px"),
                .accessibleName = QStringLiteral("Size of the screen")},
               {.control = &pubWatermarkFilterSharpness,
                .accessibleName = QStringLiteral("Sharpness of the screen")}}}},
        {Row{
            .label = QStringLiteral("Angle"),
            .fields
            = {{.control = &tfLineScreenAngle,
                .unit = QStringLiteral("\u00b0"),
                .accessibleName = QStringLiteral("Angle of the screen")}}}},
        {Row{
            .label = QStringLiteral("Centre"),
            .fields
            = {{.control = &tfCenterCircularWidth,
                .unit = QStringLiteral("% width"),
                .accessibleName = QStringLiteral("Centre of the circles across")},
               {.control = &tfCenterCircularHeight,
                .unit = QStringLiteral("% height"),
                .accessibleName = QStringLiteral("Centre of the circles upward")}}}},
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
