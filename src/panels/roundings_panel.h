// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "common_titles.h"
#include "layout.h"

#include <controls/color_well.h>
#include <controls/text_controls.h>
#include <platform/foundation/literals.h>

namespace brenvaldo::panels {

/// Rounded corners, circles and ellipses, with a border and a background.
struct RoundingsPanel : PanelView
{
    RoundingsPanel();

    controls::PopUpButton pubRCType{
        u"pubRCType"_s, {u"Rounded rectangle"_s, u"Circle"_s, u"Ellipse"_s}};
    controls::TextField tfRCDiameter{u"tfRCDiameter"_s, u"50"_s};

    controls::CheckBox cbRCBackgroundColor{u"cbRCBackgroundColor"_s, u"Coloured background"_s};
    controls::ColorWell cwRCBackgroundColor{u"cwRCBackgroundColor"_s};
    controls::TextField tfRCBackgroundHexColor{u"tfRCBackgroundHexColor"_s, u"000000"_s};
    controls::TextField tfRCEnlargeCanvas{u"tfRCEnlargeCanvas"_s, u"0"_s};

    controls::CheckBox cbRCBorderColor{u"cbRCBorderColor"_s, u"Border"_s};
    controls::ColorWell cwRCBorderColor{u"cwRCBorderColor"_s};
    controls::TextField tfRCBorderHexColor{u"tfRCBorderHexColor"_s, u"000000"_s};
    controls::TextField tfRCBorderWidth{u"tfRCBorderWidth"_s, u"10"_s};
    controls::PopUpButton pubRCBorderPos{
        u"pubRCBorderPos"_s, {u"On the photo"_s, u"Around the photo"_s}};
    controls::TextField tfRCOpacity{u"tfRCOpacity"_s, u"100"_s};
    controls::PopUpButton pubRCRenderMethod{u"pubRCRenderMethod"_s, frameBlendTitles()};
    controls::CheckBox cbRCGradient{u"cbRCGradient"_s, u"Fade out"_s};
    controls::PopUpButton pubRCGradientAngle{u"pubRCGradientAngle"_s, gradientAngleTitles()};

private:
    void giveRoles();
    [[nodiscard]] Layout shapeRows();
    [[nodiscard]] Layout borderRows();
};

} // namespace brenvaldo::panels
