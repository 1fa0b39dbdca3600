// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "common_titles.h"
#include "layout.h"

#include <controls/color_well.h>
#include <controls/text_controls.h>
#include <platform/foundation/literals.h>

namespace brenvaldo::panels {

/// Tint overlays: a coloured area, plain or fading out, laid over each photo.
struct TintPanel : PanelView
{
    TintPanel();

    controls::ColorWell cwAddTint{u"cwAddTint"_s};
    controls::TextField tfAddTintHexValue{u"tfAddTintHexValue"_s, u"000000"_s};
    controls::TextField tfAddTintOpacity{u"tfAddTintOpacity"_s, u"50"_s};
    controls::PopUpButton pubAddTintRenderMethod{
        u"pubAddTintRenderMethod"_s,
        {u"Normal"_s, u"Darker"_s, u"Lighter"_s, u"Multiply"_s, u"Overlay"_s, u"Colour"_s}};
    controls::CheckBox cbAddTintDuoTone{u"cbAddTintDuoTone"_s, u"Black and white photo below"_s};
    controls::CheckBox cbAddTintGradient{u"cbAddTintGradient"_s, u"Fade out"_s};
    controls::PopUpButton pubAddTintAngle{u"pubAddTintAngle"_s, gradientAngleTitles()};

    controls::TabView tbvFrameType{
        u"tbvFrameType"_s,
        {{.identifier = u"1"_s, .label = u"W x H"_s},
         {.identifier = u"2"_s, .label = u"%"_s},
         {.identifier = u"3"_s, .label = u"px"_s}}};
    controls::CheckBox cbAddTintOrigSize{u"cbAddTintOrigSize"_s, u"The whole photo"_s, 1};
    controls::TextField tfAddTintWidth{u"tfAddTintWidth"_s};
    controls::TextField tfAddTintHeight{u"tfAddTintHeight"_s};
    controls::TextField tfAddTintPercentage{u"tfAddTintPercentage"_s};
    controls::PopUpButton pubAddTintPercentageOrient{
        u"pubAddTintPercentageOrient"_s,
        {u"Of the width, full height"_s,
         u"Of the height, full width"_s,
         u"Of the width, same border"_s,
         u"Of the height, same border"_s,
         u"Of width and height"_s}};
    controls::TextField tfAddTintPixels{u"tfAddTintPixels"_s};

    controls::SegmentedControl scAddTintPosition{
        u"scAddTintPosition"_s,
        positionGridTitles(),
        4,
        controls::SegmentedControl::Look::PositionGrid};
    controls::TextField tfAddTintPosX{u"tfAddTintPosX"_s};
    controls::TextField tfAddTintPosY{u"tfAddTintPosY"_s};

private:
    void giveRoles();
    [[nodiscard]] Layout colorRows();
    [[nodiscard]] Pages sizePages();
};

} // namespace brenvaldo::panels
