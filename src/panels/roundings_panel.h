// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "common_titles.h"
#include "layout.h"

#include <controls/color_well.h>
#include <controls/text_controls.h>

namespace brenvaldo::panels {

/// Rounded corners, circles and ellipses, with a border and a background.
struct RoundingsPanel : PanelView
{
    RoundingsPanel();

    controls::PopUpButton pubRCType{
        u"pubRCType"_qs, {u"Rounded rectangle"_qs, u"Circle"_qs, u"Ellipse"_qs}};
    controls::TextField tfRCDiameter{u"tfRCDiameter"_qs, u"50"_qs};

    controls::CheckBox cbRCBackgroundColor{u"cbRCBackgroundColor"_qs, u"Coloured background"_qs};
    controls::ColorWell cwRCBackgroundColor{u"cwRCBackgroundColor"_qs};
    controls::TextField tfRCBackgroundHexColor{u"tfRCBackgroundHexColor"_qs, u"000000"_qs};
    controls::TextField tfRCEnlargeCanvas{u"tfRCEnlargeCanvas"_qs, u"0"_qs};

    controls::CheckBox cbRCBorderColor{u"cbRCBorderColor"_qs, u"Border"_qs};
    controls::ColorWell cwRCBorderColor{u"cwRCBorderColor"_qs};
    controls::TextField tfRCBorderHexColor{u"tfRCBorderHexColor"_qs, u"000000"_qs};
    controls::TextField tfRCBorderWidth{u"tfRCBorderWidth"_qs, u"10"_qs};
    controls::PopUpButton pubRCBorderPos{
        u"pubRCBorderPos"_qs, {u"On the photo"_qs, u"Around the photo"_qs}};
    controls::TextField tfRCOpacity{u"tfRCOpacity"_qs, u"100"_qs};
    controls::PopUpButton pubRCRenderMethod{u"pubRCRenderMethod"_qs, frameBlendTitles()};
    controls::CheckBox cbRCGradient{u"cbRCGradient"_qs, u"Fade out"_qs};
    controls::PopUpButton pubRCGradientAngle{u"pubRCGradientAngle"_qs, gradientAngleTitles()};

private:
    void giveRoles();
    [[nodiscard]] Layout shapeRows();
    [[nodiscard]] Layout borderRows();
};

} // namespace brenvaldo::panels
