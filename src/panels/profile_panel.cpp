// SPDX-License-Identifier: GPL-3.0-or-later
#include "profile_panel.h"

namespace brenvaldo::panels {

ProfilePanel::ProfilePanel()
    : PanelView(u"vwProfileConversion"_qs)
{
    pubInstalledICCProfiles.addAction(u"cGUIcontrols.hCtPSelectICCProfileCallPreview"_qs);
    pubCPCRenderIntent.addAction(u"cGUIcontrols.hCtPRenderIntentCallPreview"_qs);
    setLayout({
        {Row{.label = u"Profile"_qs, .fields = {{.control = &pubInstalledICCProfiles}}}},
        {Row{.label = u"Intent"_qs, .fields = {{.control = &pubCPCRenderIntent}}}},
    });
}

} // namespace brenvaldo::panels
