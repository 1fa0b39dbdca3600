// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "layout.h"

namespace brenvaldo::panels {

/// Conversion to a colour profile.
struct ProfilePanel : PanelView
{
    ProfilePanel();

    /// Filled when the function is selected.
    controls::ComboBox pubInstalledICCProfiles{u"pubInstalledICCProfiles"_qs, {}};
    controls::PopUpButton pubCPCRenderIntent{
        u"pubCPCRenderIntent"_qs,
        {u"perceptual"_qs, u"relative"_qs, u"absolute"_qs, u"saturation"_qs}};
};

} // namespace brenvaldo::panels
