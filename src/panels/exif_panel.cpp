// SPDX-License-Identifier: GPL-3.0-or-later
#include "exif_panel.h"

#include "common_rows.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::panels {

ExifPanel::ExifPanel()
    : PanelView(u"vwFileManagementEXIF"_s)
{
    cbClearBeforeAdd.addAlias(u"cbClearCurrentEUC"_s);
    Row keyWords = textRow(u"Keywords"_s, tfIPTCKeyWords);
    keyWords.hint = u"Parted by semicolons."_s;
    setLayout({
        {textRow(u"Comment"_s, tfExifUserComment)},
        {Row{.fields = {{.control = &cbClearBeforeAdd}}}},
        {Heading{u"IPTC"_s}},
        {textRow(u"Title"_s, tfIPTCTitle)},
        {keyWords},
        {textRow(u"Caption"_s, tfIPTCCaption)},
        {textRow(u"Headline"_s, tfIPTCHeadline)},
        {textRow(u"Copyright"_s, tfIPTCCopyRight)},
        {textRow(u"Usage terms"_s, tfIPTCCopyRightTerms)},
        {textRow(u"Creator"_s, tfIPTCCreator)},
        {textRow(u"Creator's title"_s, tfIPTCCreatorTitle)},
        {textRow(u"Source"_s, tfIPTCSourceOwner)},
        {textRow(u"Contact"_s, tfIPTCImageContactInfo)},
        {textRow(u"Caption writer"_s, tfIPTCEditorContactInfo)},
        {textRow(u"Creator's contact"_s, tfIPTCCreatorContactInfo)},
    });
}

} // namespace brenvaldo::panels
