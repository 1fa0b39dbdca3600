// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "layout.h"

#include <controls/color_well.h>
#include <controls/text_controls.h>
#include <platform/foundation/literals.h>

namespace brenvaldo::panels {

/// Turning photos by any angle, on a coloured canvas where wanted.
struct RotatePanel : PanelView
{
    RotatePanel();

    controls::TextField tfRotationAngle{u"tfRotationAngle"_s, u"0"_s};
    controls::CheckBox cbRotationBackgroundColor{
        u"cbRotationBackgroundColor"_s, u"Coloured canvas"_s};
    controls::ColorWell cwRotationBackgroundColor{u"cwRotationBackgroundColor"_s};
    controls::TextField tfRotationBackgroundHexColor{
        u"tfRotationBackgroundHexColor"_s, u"000000"_s};
    controls::TextField tfRotationEnlargeCanvas{u"tfRotationEnlargeCanvas"_s, u"0"_s};
};

} // namespace brenvaldo::panels
