// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "layout.h"

#include <controls/text_controls.h>

namespace brenvaldo::panels {

/// QR and Code 128 images of a text.
struct CodePanel : PanelView
{
    CodePanel();

    controls::PopUpButton pubCodeType{u"pubCodeType"_qs, {u"QR code"_qs, u"Code 128"_qs}};
    controls::TextField tfQRtext{u"tfQRtext"_qs};
    controls::TextField tfQRDestination{u"tfQRDestination"_qs};
    controls::TextField tfQRName{u"tfQRName"_qs};
    controls::TextField tfQRSize{u"tfQRSize"_qs};
};

} // namespace brenvaldo::panels
