// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "layout.h"

#include <controls/color_well.h>
#include <controls/text_controls.h>

namespace brenvaldo::panels {

/// Frames inside or around each photo.
struct FramingPanel : PanelView
{
    FramingPanel();

    controls::PopUpButton pubFramingType;
    controls::TextField tfFramingThickness;
    controls::TextField tfFramingInset;
    controls::ColorWell myNSColorWellObjFraming;
    controls::TextField tfFramingHEXvalue;
    controls::TextField tfFramingOpacity;
    controls::PopUpButton pubFramingRenderMethod;
    controls::CheckBox cbFramingGradient;
    controls::PopUpButton pubFramingGradientAngle;

private:
    void giveRoles();
};

} // namespace brenvaldo::panels
