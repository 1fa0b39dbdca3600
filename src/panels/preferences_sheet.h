// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "layout.h"

#include <controls/text_controls.h>

namespace brenvaldo::panels {

/// The sheet in which the folder of the support files is chosen.
struct PreferencesSheet : PanelView
{
    PreferencesSheet();

    controls::Sheet sheet; ///< named as the view is
    controls::TextField tfLibraryFilePath;
    controls::Button btnChooseLibraryDestination;
    controls::Button btnClosePreferences;
};

} // namespace brenvaldo::panels
