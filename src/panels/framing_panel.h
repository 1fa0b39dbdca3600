// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "common_titles.h"
#include "layout.h"

#include <controls/color_well.h>
#include <controls/text_controls.h>
#include <platform/foundation/literals.h>

namespace brenvaldo::panels {

/// Frames inside or around each photo.
struct FramingPanel : PanelView
{
    FramingPanel();

    controls::PopUpButton pubFramingType{
        u"pubFramingType"_s, {u"Inside the photo"_s, u"Around the photo"_s}};
    controls::TextField tfFramingThickness{u"tfFramingThickness"_s, u"20"_s};
    controls::TextField tfFramingInset{u"tfFramingInset"_s, u"0"_s};
    controls::ColorWell myNSColorWellObjFraming{u"myNSColorWellObjFraming"_s};
    controls::TextField tfFramingHEXvalue{u"tfFramingHEXvalue"_s, u"000000"_s};
    controls::TextField tfFramingOpacity{u"tfFramingOpacity"_s, u"100"_s};
    controls::PopUpButton pubFramingRenderMethod{u"pubFramingRenderMethod"_s, frameBlendTitles()};
    controls::CheckBox cbFramingGradient{u"cbFramingGradient"_s, u"Fade out"_s};
    controls::PopUpButton pubFramingGradientAngle{
        u"pubFramingGradientAngle"_s, gradientAngleTitles()};

private:
    void giveRoles();
};

} // namespace brenvaldo::panels
