// SPDX-License-Identifier: GPL-3.0-or-later
#include "code_panel.h"

#include "common_rows.h"

namespace brenvaldo::panels {

CodePanel::CodePanel()
    : PanelView(u"vwQRBarCode"_qs)
{
    setLayout({
        {Row{.label = u"Code"_qs, .fields = {{.control = &pubCodeType}}}},
        {textRow(u"Text"_qs, tfQRtext)},
        {textRow(u"Folder"_qs, tfQRDestination)},
        {textRow(u"File name"_qs, tfQRName)},
        {textRow(u"Size"_qs, tfQRSize, u"px"_qs)},
    });
}

} // namespace brenvaldo::panels
