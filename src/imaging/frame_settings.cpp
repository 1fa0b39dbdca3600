// SPDX-License-Identifier: GPL-3.0-or-later
#include "frame_settings.h"

#include <panels/framing_panel.h>

namespace brenvaldo::imaging {

FrameSettings readSettings(const panels::FramingPanel& panel)
{
    return {
        .frameType = panel.pubFramingType.indexOfSelectedItem(),
        .thickness = panel.tfFramingThickness.integerValue(),
        .inset = panel.tfFramingInset.integerValue(),
        .opacity = panel.tfFramingOpacity.integerValue(),
        .blendIndex = panel.pubFramingRenderMethod.indexOfSelectedItem(),
        .gradientState = panel.cbFramingGradient.state(),
        .angleIndex = panel.pubFramingGradientAngle.indexOfSelectedItem(),
        .color = panel.myNSColorWellObjFraming.color().withAlpha(1)};
}

} // namespace brenvaldo::imaging
