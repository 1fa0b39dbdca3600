// SPDX-License-Identifier: GPL-3.0-or-later
#include "exif_panel.h"

#include "common_rows.h"

namespace brenvaldo::panels {

ExifPanel::ExifPanel()
    : PanelView(u"vwFileManagementEXIF"_qs)
    , tfExifUserComment(u"tfExifUserComment"_qs)
    , cbClearBeforeAdd(u"cbClearBeforeAdd"_qs, u"Replace the comment that stands there"_qs)
{
    cbClearBeforeAdd.addAlias(u"cbClearCurrentEUC"_qs);
    setLayout({
        {textRow(u"Comment"_qs, tfExifUserComment)},
        {Row{.fields = {{.control = &cbClearBeforeAdd}}}},
        {Note{u"Writing into photos comes with a later version."_qs}},
    });
}

} // namespace brenvaldo::panels
