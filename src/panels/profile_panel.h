// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "layout.h"

namespace brenvaldo::panels {

/// Conversion to a colour profile.
struct ProfilePanel : PanelView
{
    ProfilePanel();

    controls::ComboBox pubInstalledICCProfiles; ///< filled when the function is selected
    controls::PopUpButton pubCPCRenderIntent;
};

} // namespace brenvaldo::panels
