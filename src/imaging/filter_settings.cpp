// SPDX-License-Identifier: GPL-3.0-or-later
#include "filter_settings.h"

#include <panels/filter_panel.h>
#include <platform/foundation/numbers.h>

namespace brenvaldo::imaging {

namespace {

float titleOf(const controls::PopUpButton& popUp)
{
    return platform::floatValue(popUp.titleOfSelectedItem());
}

ScreenSettings screenSettings(const panels::FilterScreenView& view)
{
    return {
        .width = view.tfFilterColorConvWidth.floatValue(),
        .angle = view.tfFilterLineScreenAngle.floatValue(),
        .centreX = centrePercent(view.tfFilterCenterCircularWidth),
        .centreY = centrePercent(view.tfFilterCenterCircularHeight),
        .isMask = view.cbFilterColorConvMask.isOn(),
        .isInverted = view.cbFilterColorConvInvert.isOn(),
        .sharpness = titleOf(view.pubFilterColorConvSharpness)};
}

} // namespace

FilterSettings readSettings(const panels::FilterPanel& panel)
{
    return {
        .number = panel.pubFilterSelection.indexOfSelectedItem(),
        .screen = screenSettings(panel.vwFiltersScreenView),
        .blurRadius = panel.vwFiltersGaussianView.tfFilterBlurRadiusVal.floatValue(),
        .color = panel.vwFiltersMonochromeView.cwFilterMonochromeColor.color(),
        .monochromeIntensity = titleOf(panel.vwFiltersMonochromeView.pubFilterMonochromeIntensity),
        .levels = panel.vwFiltersPosterizeView.tfFilterColorConvLevels.floatValue(),
        .sepiaIntensity = titleOf(panel.vwFiltersSepiaView.pubFilterColorConvIntensity),
        .unsharpRadius = panel.vwFiltersUnsharpView.tfFilterUnsharpMaskRadius.floatValue(),
        .unsharpIntensity = titleOf(panel.vwFiltersUnsharpView.pubFilterUnsharpMaskIntensity)};
}

float centrePercent(const controls::TextField& field)
{
    constexpr float middle = 50;
    return field.stringValue().isEmpty() ? middle : field.floatValue();
}

} // namespace brenvaldo::imaging
