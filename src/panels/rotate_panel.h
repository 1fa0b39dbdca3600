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

    controls::TextField tfRotationAngle{u"tfRotationAngle"_qs, u"0"_qs};
    controls::CheckBox cbRotationBackgroundColor{
        u"cbRotationBackgroundColor"_qs, u"Coloured canvas"_qs};
    controls::ColorWell cwRotationBackgroundColor{u"cwRotationBackgroundColor"_qs};
    controls::TextField tfRotationBackgroundHexColor{
        u"tfRotationBackgroundHexColor"_qs, u"000000"_qs};
    controls::TextField tfRotationEnlargeCanvas{u"tfRotationEnlargeCanvas"_qs, u"0"_qs};
};

} // namespace brenvaldo::panels
