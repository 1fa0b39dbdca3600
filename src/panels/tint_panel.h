// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "layout.h"

#include <controls/color_well.h>
#include <controls/text_controls.h>

namespace brenvaldo::panels {

/// Tint overlays: a coloured area, plain or fading out, laid over each photo.
struct TintPanel : PanelView
{
    TintPanel();

    controls::ColorWell cwAddTint;
    controls::TextField tfAddTintHexValue;
    controls::TextField tfAddTintOpacity;
    controls::PopUpButton pubAddTintRenderMethod;
    controls::CheckBox cbAddTintDuoTone;
    controls::CheckBox cbAddTintGradient;
    controls::PopUpButton pubAddTintAngle;

    controls::TabView tbvFrameType;
    controls::CheckBox cbAddTintOrigSize;
    controls::TextField tfAddTintWidth;
    controls::TextField tfAddTintHeight;
    controls::TextField tfAddTintPercentage;
    controls::PopUpButton pubAddTintPercentageOrient;
    controls::TextField tfAddTintPixels;

    controls::SegmentedControl scAddTintPosition;
    controls::TextField tfAddTintPosX;
    controls::TextField tfAddTintPosY;

private:
    void giveRoles();
    [[nodiscard]] Layout colourRows();
    [[nodiscard]] Pages sizePages();
};

} // namespace brenvaldo::panels
