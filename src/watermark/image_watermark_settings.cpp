// SPDX-License-Identifier: GPL-3.0-or-later
#include "image_watermark_settings.h"

#include "offset_field.h"
#include "watermark_rules.h"

#include <panels/image_watermark_controls.h>
#include <platform/foundation/literals.h>

namespace brenvaldo::watermark {

namespace {

MarkFilter filterOfIndex(int index)
{
    const bool isFilter = index > static_cast<int>(MarkFilter::None)
        && index <= static_cast<int>(MarkFilter::Rings);
    return isFilter ? static_cast<MarkFilter>(index) : MarkFilter::None;
}

FadeShape readFadeShape(const panels::ImageWatermarkControls& controls)
{
    if (!controls.cbCircularFadeOut.isOn())
        return FadeShape::Linear;
    return controls.cbCircularInvertFadeOut.isOn() ? FadeShape::InvertedRadial : FadeShape::Radial;
}

/// The field shows the angle that counts.
int readFadeAngle(controls::TextField& field)
{
    const int angle = fadeAngleOf(field.intValue());
    if (angle == 0)
        field.setStringValue(u"0"_s);
    return angle;
}

FadeRule readFade(const panels::ImageWatermarkControls& controls, int angle)
{
    const auto value = static_cast<float>(controls.sliderFadeOutValue.doubleValue());
    return {
        .shape = readFadeShape(controls),
        .extent = static_cast<double>(fadeExtentOf(value)),
        .angle = angle};
}

imaging::ScreenSettings readScreen(const panels::ImageWatermarkControls& controls)
{
    return {
        .width = controls.tfWatermarkFilterSize.floatValue(),
        .angle = controls.tfLineScreenAngle.floatValue(),
        .centreX = imaging::centrePercent(controls.tfCenterCircularWidth),
        .centreY = imaging::centrePercent(controls.tfCenterCircularHeight),
        .sharpness
        = static_cast<float>(controls.pubWatermarkFilterSharpness.indexOfSelectedItem())};
}

MarkShadow readShadow(const panels::ImageWatermarkControls& controls)
{
    return {
        .color = controls.cwImageShadowColor.color().withAlpha(1),
        .xOffset = offsetOf(controls.tfImageShadowXOffset),
        .yOffset = offsetOf(controls.tfImageShadowYOffset),
        .blurRadius = controls.tfImageShadowRadius.intValue()};
}

} // namespace

ImageWatermarkSettings readSettings(panels::ImageWatermarkControls& controls)
{
    const int fadeAngle = readFadeAngle(controls.tfImageFadeOutAngle);
    ImageWatermarkSettings settings{
        .path = controls.tfWaterMarkImageFilePath.stringValue(),
        .scale
        = {.percent = controls.tfImageScalePC.intValue(),
           .row = controls.mxImageScaleProperty.selectedRow()},
        .angle = controls.tfImageWMAngle.intValue(),
        .inset
        = {.anchor = controls.scImageWaterMarkPos.selectedSegment(),
           .xOffset = offsetOf(controls.tfImageXOffset),
           .yOffset = offsetOf(controls.tfImageYOffset)},
        .lane = controls.cbPatternCheck.isOn() ? Lane::Pattern : Lane::Single,
        .blendMode = blendModeOfIndex(controls.pubRenderMethod.indexOfSelectedItem()),
        .opacity = opacityOfPercent(controls.tfImageTransparancy.intValue()),
        .shadow = {},
        .fade = {},
        .filter = filterOfIndex(controls.pubWatermarkFilterType.indexOfSelectedItem()),
        .screen = readScreen(controls)};
    if (controls.cbImageShadowCheck.isOn())
        settings.shadow = readShadow(controls);
    if (controls.cbImageFadeOut.isOn())
        settings.fade = readFade(controls, fadeAngle);
    return settings;
}

} // namespace brenvaldo::watermark
