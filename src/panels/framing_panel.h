// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "common_titles.h"
#include "layout.h"

#include <controls/color_well.h>
#include <controls/text_controls.h>

namespace brenvaldo::panels {

/// Frames inside or around each photo.
struct FramingPanel : PanelView
{
    FramingPanel();

    controls::PopUpButton pubFramingType{
        u"pubFramingType"_qs, {u"Inside the photo"_qs, u"Around the photo"_qs}};
    controls::TextField tfFramingThickness{u"tfFramingThickness"_qs, u"20"_qs};
    controls::TextField tfFramingInset{u"tfFramingInset"_qs, u"0"_qs};
    controls::ColorWell myNSColorWellObjFraming{u"myNSColorWellObjFraming"_qs};
    controls::TextField tfFramingHEXvalue{u"tfFramingHEXvalue"_qs, u"000000"_qs};
    controls::TextField tfFramingOpacity{u"tfFramingOpacity"_qs, u"100"_qs};
    controls::PopUpButton pubFramingRenderMethod{u"pubFramingRenderMethod"_qs, frameBlendTitles()};
    controls::CheckBox cbFramingGradient{u"cbFramingGradient"_qs, u"Fade out"_qs};
    controls::PopUpButton pubFramingGradientAngle{
        u"pubFramingGradientAngle"_qs, gradientAngleTitles()};

private:
    void giveRoles();
};

} // namespace brenvaldo::panels
