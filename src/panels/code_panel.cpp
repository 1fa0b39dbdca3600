// SPDX-License-Identifier: GPL-3.0-or-later
#include "code_panel.h"

#include "common_rows.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::panels {

CodePanel::CodePanel()
    : PanelView(u"vwQRBarCode"_s)
{
    setLayout({
        {Row{.label = u"Code"_s, .fields = {{.control = &pubCodeType}}}},
        {textRow(u"Text"_s, tfQRtext)},
        {textRow(u"Folder"_s, tfQRDestination)},
        {textRow(u"File name"_s, tfQRName)},
        {textRow(u"Size"_s, tfQRSize, u"px"_s)},
    });
}

} // namespace brenvaldo::panels
