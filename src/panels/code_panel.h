// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "layout.h"

#include <controls/text_controls.h>
#include <platform/foundation/literals.h>

namespace brenvaldo::panels {

/// QR and Code 128 images of a text.
struct CodePanel : PanelView
{
    CodePanel();

    controls::PopUpButton pubCodeType{u"pubCodeType"_s, {u"QR code"_s, u"Code 128"_s}};
    controls::TextField tfQRtext{u"tfQRtext"_s};
    controls::TextField tfQRDestination{u"tfQRDestination"_s};
    controls::TextField tfQRName{u"tfQRName"_s};
    controls::TextField tfQRSize{u"tfQRSize"_s};
    controls::Button btnGenerateCode{
        u"btnGenerateCode"_s, u"Generate code"_s, u"cGUIcontrols.hGenerateCode"_s};
};

} // namespace brenvaldo::panels
