// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "layout.h"

#include <controls/text_controls.h>
#include <platform/foundation/literals.h>

namespace brenvaldo::panels {

/// The user comment and the IPTC fields that are written into the photos themselves.
struct ExifPanel : PanelView
{
    ExifPanel();

    controls::TextField tfExifUserComment{u"tfExifUserComment"_s};
    controls::CheckBox cbClearBeforeAdd{
        u"cbClearBeforeAdd"_s, u"Replace the comment that stands there"_s};

    controls::TextField tfIPTCTitle{u"tfIPTCTitle"_s};
    /// Parted by ";".
    controls::TextField tfIPTCKeyWords{u"tfIPTCKeyWords"_s};
    controls::TextField tfIPTCCaption{u"tfIPTCCaption"_s};
    controls::TextField tfIPTCHeadline{u"tfIPTCHeadline"_s};
    controls::TextField tfIPTCCopyRight{u"tfIPTCCopyRight"_s};
    controls::TextField tfIPTCCopyRightTerms{u"tfIPTCCopyRightTerms"_s};
    controls::TextField tfIPTCCreator{u"tfIPTCCreator"_s};
    controls::TextField tfIPTCCreatorTitle{u"tfIPTCCreatorTitle"_s};
    controls::TextField tfIPTCSourceOwner{u"tfIPTCSourceOwner"_s};
    controls::TextField tfIPTCImageContactInfo{u"tfIPTCImageContactInfo"_s};
    controls::TextField tfIPTCEditorContactInfo{u"tfIPTCEditorContactInfo"_s};
    controls::TextField tfIPTCCreatorContactInfo{u"tfIPTCCreatorContactInfo"_s};

    /// Writes into the selected photo alone.
    controls::Button btnApplyExifUserComment{
        u"btnApplyExifUserComment"_s,
        u"Write into the selected photo"_s,
        u"mMeta.btApplyExifUserComment"_s};

    /// What the button has written, for as long as the process lives.
    controls::ArrayController mymMetaLogTableViewController{
        u"mymMetaLogTableViewController"_s,
        {u"LogDate"_s,
         u"LogProcess"_s,
         u"LogAction"_s,
         u"LogStatus"_s,
         u"LogI"_s,
         u"LogO"_s,
         u"LogIpath"_s,
         u"LogOpath"_s}};
    controls::TableView themMetaLogTable{u"themMetaLogTable"_s, mymMetaLogTableViewController};
};

} // namespace brenvaldo::panels
