// SPDX-License-Identifier: GPL-3.0-or-later
#include "profile_panel.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::panels {

ProfilePanel::ProfilePanel()
    : PanelView(u"vwProfileConversion"_s)
{
    pubInstalledICCProfiles.addAction(u"cGUIcontrols.hCtPSelectICCProfileCallPreview"_s);
    pubCPCRenderIntent.addAction(u"cGUIcontrols.hCtPRenderIntentCallPreview"_s);
    setLayout({
        {Row{.label = u"Profile"_s, .fields = {{.control = &pubInstalledICCProfiles}}}},
        {Row{.label = u"Intent"_s, .fields = {{.control = &pubCPCRenderIntent}}}},
    });
}

} // namespace brenvaldo::panels
