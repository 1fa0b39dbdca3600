// SPDX-License-Identifier: GPL-3.0-or-later
#include "rename_panel.h"

#include "common_rows.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::panels {

RenamePanel::RenamePanel()
    : PanelView(u"vwFileManagementRename"_s)
{
    setLayout({
        {Heading{u"Before the name"_s}},
        {textRow(u"Text"_s, tfPrefixToAdd)},
        {Row{.label = u"Property"_s, .fields = {{.control = &cbxPrefixMetaData}}}},
        {Heading{u"Behind the name"_s}},
        {textRow(u"Text"_s, tfPostfixToAdd)},
        {Row{.label = u"Property"_s, .fields = {{.control = &cbxPostfixMetaData}}}},
    });
}

} // namespace brenvaldo::panels
