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
        {Row{
            .label = u"Folder"_s,
            .fields = {{.control = &tfQRDestination}},
            .hint = u"Ends in \"/\": name and folder are simply joined."_s}},
        {textRow(u"File name"_s, tfQRName)},
        {Row{
            .label = u"Size"_s,
            .fields = {{.control = &tfQRSize, .unit = u"px"_s}},
            .hint = u"Scanners want bars and squares of 2 px at least."_s}},
        {Row{.fields = {{.control = &btnGenerateCode}}}},
    });
}

} // namespace brenvaldo::panels
