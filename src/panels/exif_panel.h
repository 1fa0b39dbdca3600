// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "layout.h"

#include <controls/text_controls.h>

namespace brenvaldo::panels {

/// The user comment and the IPTC fields that are written into the photos themselves.
struct ExifPanel : PanelView
{
    ExifPanel();

    controls::TextField tfExifUserComment{u"tfExifUserComment"_qs};
    controls::CheckBox cbClearBeforeAdd{
        u"cbClearBeforeAdd"_qs, u"Replace the comment that stands there"_qs};

    controls::TextField tfIPTCTitle{u"tfIPTCTitle"_qs};
    /// Parted by ";".
    controls::TextField tfIPTCKeyWords{u"tfIPTCKeyWords"_qs};
    controls::TextField tfIPTCCaption{u"tfIPTCCaption"_qs};
    controls::TextField tfIPTCHeadline{u"tfIPTCHeadline"_qs};
    controls::TextField tfIPTCCopyRight{u"tfIPTCCopyRight"_qs};
    controls::TextField tfIPTCCopyRightTerms{u"tfIPTCCopyRightTerms"_qs};
    controls::TextField tfIPTCCreator{u"tfIPTCCreator"_qs};
    controls::TextField tfIPTCCreatorTitle{u"tfIPTCCreatorTitle"_qs};
    controls::TextField tfIPTCSourceOwner{u"tfIPTCSourceOwner"_qs};
    controls::TextField tfIPTCImageContactInfo{u"tfIPTCImageContactInfo"_qs};
    controls::TextField tfIPTCEditorContactInfo{u"tfIPTCEditorContactInfo"_qs};
    controls::TextField tfIPTCCreatorContactInfo{u"tfIPTCCreatorContactInfo"_qs};
};

} // namespace brenvaldo::panels
