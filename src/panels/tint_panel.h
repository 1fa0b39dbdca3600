// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "common_titles.h"
#include "layout.h"

#include <controls/color_well.h>
#include <controls/text_controls.h>

namespace brenvaldo::panels {

/// Tint overlays: a coloured area, plain or fading out, laid over each photo.
struct TintPanel : PanelView
{
    TintPanel();

    controls::ColorWell cwAddTint{u"cwAddTint"_qs};
    controls::TextField tfAddTintHexValue{u"tfAddTintHexValue"_qs, u"000000"_qs};
    controls::TextField tfAddTintOpacity{u"tfAddTintOpacity"_qs, u"50"_qs};
    controls::PopUpButton pubAddTintRenderMethod{
        u"pubAddTintRenderMethod"_qs,
        {u"Normal"_qs, u"Darker"_qs, u"Lighter"_qs, u"Multiply"_qs, u"Overlay"_qs, u"Colour"_qs}};
    controls::CheckBox cbAddTintDuoTone{u"cbAddTintDuoTone"_qs, u"Black and white photo below"_qs};
    controls::CheckBox cbAddTintGradient{u"cbAddTintGradient"_qs, u"Fade out"_qs};
    controls::PopUpButton pubAddTintAngle{u"pubAddTintAngle"_qs, gradientAngleTitles()};

    controls::TabView tbvFrameType{
        u"tbvFrameType"_qs,
        {{.identifier = u"1"_qs, .label = u"W x H"_qs},
         {.identifier = u"2"_qs, .label = u"%"_qs},
         {.identifier = u"3"_qs, .label = u"px"_qs}}};
    controls::CheckBox cbAddTintOrigSize{u"cbAddTintOrigSize"_qs, u"The whole photo"_qs, 1};
    controls::TextField tfAddTintWidth{u"tfAddTintWidth"_qs};
    controls::TextField tfAddTintHeight{u"tfAddTintHeight"_qs};
    controls::TextField tfAddTintPercentage{u"tfAddTintPercentage"_qs};
    controls::PopUpButton pubAddTintPercentageOrient{
        u"pubAddTintPercentageOrient"_qs,
        {u"Of the width, full height"_qs,
         u"Of the height, full width"_qs,
         u"Of the width, same border"_qs,
         u"Of the height, same border"_qs,
         u"Of width and height"_qs}};
    controls::TextField tfAddTintPixels{u"tfAddTintPixels"_qs};

    controls::SegmentedControl scAddTintPosition{
        u"scAddTintPosition"_qs,
        positionGridTitles(),
        4,
        controls::SegmentedControl::Look::PositionGrid};
    controls::TextField tfAddTintPosX{u"tfAddTintPosX"_qs};
    controls::TextField tfAddTintPosY{u"tfAddTintPosY"_qs};

private:
    void giveRoles();
    [[nodiscard]] Layout colourRows();
    [[nodiscard]] Pages sizePages();
};

} // namespace brenvaldo::panels
