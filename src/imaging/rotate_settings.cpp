// SPDX-License-Identifier: GPL-3.0-or-later
#include "rotate_settings.h"

#include <panels/rotate_panel.h>
#include <platform/foundation/numbers.h>

namespace brenvaldo::imaging {

RotateSettings readSettings(const panels::RotatePanel& panel)
{
    return {
        .degrees = panel.tfRotationAngle.floatValue(),
        .hasCanvas = panel.cbRotationBackgroundColor.isOn(),
        .canvasColor = panel.cwRotationBackgroundColor.color().withAlpha(1),
        .canvasMargin = platform::wrapped32(panel.tfRotationEnlargeCanvas.integerValue())};
}

} // namespace brenvaldo::imaging
