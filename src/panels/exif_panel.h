// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "layout.h"

#include <controls/text_controls.h>

namespace brenvaldo::panels {

/// The user comment that is written into the photos themselves.
struct ExifPanel : PanelView
{
    ExifPanel();

    controls::TextField tfExifUserComment;
    controls::CheckBox cbClearBeforeAdd;
};

} // namespace brenvaldo::panels
