// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "layout.h"

#include <controls/text_controls.h>

namespace brenvaldo::panels {

/// The user comment and the IPTC fields that are written into the photos themselves.
struct ExifPanel : PanelView
{
    ExifPanel();

    controls::TextField tfExifUserComment;
    controls::CheckBox cbClearBeforeAdd;

    controls::TextField tfIPTCTitle;
    controls::TextField tfIPTCKeyWords; ///< parted by ";"
    controls::TextField tfIPTCCaption;
    controls::TextField tfIPTCHeadline;
    controls::TextField tfIPTCCopyRight;
    controls::TextField tfIPTCCopyRightTerms;
    controls::TextField tfIPTCCreator;
    controls::TextField tfIPTCCreatorTitle;
    controls::TextField tfIPTCSourceOwner;
    controls::TextField tfIPTCImageContactInfo;
    controls::TextField tfIPTCEditorContactInfo;
    controls::TextField tfIPTCCreatorContactInfo;
};

} // namespace brenvaldo::panels
