// SPDX-License-Identifier: GPL-3.0-or-later
#include "rounding_settings.h"

#include <panels/roundings_panel.h>

namespace brenvaldo::imaging {

RoundingSettings readSettings(const panels::RoundingsPanel& panel)
{
    return {
        .radius = panel.tfRCDiameter.integerValue(),
        .type = panel.pubRCType.indexOfSelectedItem(),
        .borderColor = panel.cwRCBorderColor.color().withAlpha(1),
        .backgroundColor = panel.cwRCBackgroundColor.color().withAlpha(1),
        .borderState = panel.cbRCBorderColor.state(),
        .borderWidth = panel.tfRCBorderWidth.integerValue(),
        .backgroundState = panel.cbRCBackgroundColor.state(),
        .opacity = panel.tfRCOpacity.integerValue(),
        .gradientState = panel.cbRCGradient.state(),
        .angleIndex = panel.pubRCGradientAngle.indexOfSelectedItem(),
        .blendIndex = panel.pubRCRenderMethod.indexOfSelectedItem(),
        .borderPosition = panel.pubRCBorderPos.indexOfSelectedItem(),
        .margin = panel.tfRCEnlargeCanvas.integerValue()};
}

} // namespace brenvaldo::imaging
