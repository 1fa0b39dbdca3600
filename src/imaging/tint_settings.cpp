// SPDX-License-Identifier: GPL-3.0-or-later
#include "tint_settings.h"

#include <panels/tint_panel.h>

namespace brenvaldo::imaging {

TintSettings readSettings(const panels::TintPanel& panel)
{
    return {
        .color = panel.cwAddTint.color().withAlpha(1),
        .blendIndex = panel.pubAddTintRenderMethod.indexOfSelectedItem(),
        .duoToneState = panel.cbAddTintDuoTone.state(),
        .anchor = panel.scAddTintPosition.selectedSegment(),
        .xOffset = panel.tfAddTintPosX.integerValue(),
        .yOffset = panel.tfAddTintPosY.integerValue(),
        .sizeMode = panel.tbvFrameType.selectedLabel(),
        .width = panel.tfAddTintWidth.integerValue(),
        .height = panel.tfAddTintHeight.integerValue(),
        .originalSizeState = panel.cbAddTintOrigSize.state(),
        .percentage = panel.tfAddTintPercentage.integerValue(),
        .pixels = panel.tfAddTintPixels.integerValue(),
        .percentageMode = panel.pubAddTintPercentageOrient.indexOfSelectedItem(),
        .gradientState = panel.cbAddTintGradient.state(),
        .angleIndex = panel.pubAddTintAngle.indexOfSelectedItem(),
        .opacity = panel.tfAddTintOpacity.integerValue()};
}

} // namespace brenvaldo::imaging
