// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "layout.h"

#include <controls/text_controls.h>

namespace brenvaldo::panels {

/// QR and Code 128 images of a text.
struct CodePanel : PanelView
{
    CodePanel();

    controls::PopUpButton pubCodeType;
    controls::TextField tfQRtext;
    controls::TextField tfQRDestination;
    controls::TextField tfQRName;
    controls::TextField tfQRSize;
};

} // namespace brenvaldo::panels
