// SPDX-License-Identifier: GPL-3.0-or-later
#include "exif_panel.h"

#include "common_rows.h"

namespace brenvaldo::panels {

ExifPanel::ExifPanel()
    : PanelView(u"vwFileManagementEXIF"_qs)
    , tfExifUserComment(u"tfExifUserComment"_qs)
    , cbClearBeforeAdd(u"cbClearBeforeAdd"_qs, u"Replace the comment that stands there"_qs)
    , tfIPTCTitle(u"tfIPTCTitle"_qs)
    , tfIPTCKeyWords(u"tfIPTCKeyWords"_qs)
    , tfIPTCCaption(u"tfIPTCCaption"_qs)
    , tfIPTCHeadline(u"tfIPTCHeadline"_qs)
    , tfIPTCCopyRight(u"tfIPTCCopyRight"_qs)
    , tfIPTCCopyRightTerms(u"tfIPTCCopyRightTerms"_qs)
    , tfIPTCCreator(u"tfIPTCCreator"_qs)
    , tfIPTCCreatorTitle(u"tfIPTCCreatorTitle"_qs)
    , tfIPTCSourceOwner(u"tfIPTCSourceOwner"_qs)
    , tfIPTCImageContactInfo(u"tfIPTCImageContactInfo"_qs)
    , tfIPTCEditorContactInfo(u"tfIPTCEditorContactInfo"_qs)
    , tfIPTCCreatorContactInfo(u"tfIPTCCreatorContactInfo"_qs)
{
    cbClearBeforeAdd.addAlias(u"cbClearCurrentEUC"_qs);
    Row keyWords = textRow(u"Keywords"_qs, tfIPTCKeyWords);
    keyWords.hint = u"Parted by semicolons."_qs;
    setLayout({
        {textRow(u"Comment"_qs, tfExifUserComment)},
        {Row{.fields = {{.control = &cbClearBeforeAdd}}}},
        {Heading{u"IPTC"_qs}},
        {textRow(u"Title"_qs, tfIPTCTitle)},
        {keyWords},
        {textRow(u"Caption"_qs, tfIPTCCaption)},
        {textRow(u"Headline"_qs, tfIPTCHeadline)},
        {textRow(u"Copyright"_qs, tfIPTCCopyRight)},
        {textRow(u"Usage terms"_qs, tfIPTCCopyRightTerms)},
        {textRow(u"Creator"_qs, tfIPTCCreator)},
        {textRow(u"Creator's title"_qs, tfIPTCCreatorTitle)},
        {textRow(u"Source"_qs, tfIPTCSourceOwner)},
        {textRow(u"Contact"_qs, tfIPTCImageContactInfo)},
        {textRow(u"Caption writer"_qs, tfIPTCEditorContactInfo)},
        {textRow(u"Creator's contact"_qs, tfIPTCCreatorContactInfo)},
    });
}

} // namespace brenvaldo::panels
