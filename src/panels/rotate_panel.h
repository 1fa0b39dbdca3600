// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "layout.h"

#include <controls/color_well.h>
#include <controls/text_controls.h>

namespace brenvaldo::panels {

/// Turning photos by any angle, on a coloured canvas where wanted.
struct RotatePanel : PanelView
{
    RotatePanel();

    controls::TextField tfRotationAngle;
    controls::CheckBox cbRotationBackgroundColor;
    controls::ColorWell cwRotationBackgroundColor;
    controls::TextField tfRotationBackgroundHexColor;
    controls::TextField tfRotationEnlargeCanvas;
};

} // namespace brenvaldo::panels
