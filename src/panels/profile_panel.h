// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "layout.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::panels {

/// Conversion to a colour profile.
struct ProfilePanel : PanelView
{
    ProfilePanel();

    /// Filled when the function is selected.
    controls::ComboBox pubInstalledICCProfiles{u"pubInstalledICCProfiles"_s, {}};
    controls::PopUpButton pubCPCRenderIntent{
        u"pubCPCRenderIntent"_s, {u"perceptual"_s, u"relative"_s, u"absolute"_s, u"saturation"_s}};
};

} // namespace brenvaldo::panels
