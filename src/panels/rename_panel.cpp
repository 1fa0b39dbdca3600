// SPDX-License-Identifier: GPL-3.0-or-later
#include "rename_panel.h"

#include "common_rows.h"

namespace brenvaldo::panels {

RenamePanel::RenamePanel()
    : PanelView(u"vwFileManagementRename"_qs)
{
    setLayout({
        {Heading{u"Before the name"_qs}},
        {textRow(u"Text"_qs, tfPrefixToAdd)},
        {Row{.label = u"Property"_qs, .fields = {{.control = &cbxPrefixMetaData}}}},
        {Heading{u"Behind the name"_qs}},
        {textRow(u"Text"_qs, tfPostfixToAdd)},
        {Row{.label = u"Property"_qs, .fields = {{.control = &cbxPostfixMetaData}}}},
    });
}

} // namespace brenvaldo::panels
