// SPDX-License-Identifier: GPL-3.0-or-later
#include "exif_panel.h"

#include "common_rows.h"

namespace brenvaldo::panels {

ExifPanel::ExifPanel()
    : PanelView(u"vwFileManagementEXIF"_qs)
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
