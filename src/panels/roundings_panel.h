// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "layout.h"

#include <controls/color_well.h>
#include <controls/text_controls.h>

namespace brenvaldo::panels {

/// Rounded corners, circles and ellipses, with a border and a background.
struct RoundingsPanel : PanelView
{
    RoundingsPanel();

    controls::PopUpButton pubRCType;
    controls::TextField tfRCDiameter;

    controls::CheckBox cbRCBackgroundColor;
    controls::ColorWell cwRCBackgroundColor;
    controls::TextField tfRCBackgroundHexColor;
    controls::TextField tfRCEnlargeCanvas;

    controls::CheckBox cbRCBorderColor;
    controls::ColorWell cwRCBorderColor;
    controls::TextField tfRCBorderHexColor;
    controls::TextField tfRCBorderWidth;
    controls::PopUpButton pubRCBorderPos;
    controls::TextField tfRCOpacity;
    controls::PopUpButton pubRCRenderMethod;
    controls::CheckBox cbRCGradient;
    controls::PopUpButton pubRCGradientAngle;

private:
    void giveRoles();
    [[nodiscard]] Layout shapeRows();
    [[nodiscard]] Layout borderRows();
};

} // namespace brenvaldo::panels
