// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "layout.h"

#include <controls/text_controls.h>

namespace brenvaldo::panels {

/// The sheet in which the folder of the support files is chosen.
struct PreferencesSheet : PanelView
{
    PreferencesSheet();

    /// Named as the view is.
    controls::Sheet sheet{name()};
    controls::TextField tfLibraryFilePath{u"tfLibraryFilePath"_qs};
    controls::Button btnChooseLibraryDestination{
        u"btnChooseLibraryDestination"_qs,
        u"Choose\u2026"_qs,
        u"cSheetControl.chooseLibraryDestination"_qs};
    controls::Button btnClosePreferences{
        u"btnClosePreferences"_qs, u"Close"_qs, u"cSheetControl.closePreferencesSheetObjC"_qs};
};

} // namespace brenvaldo::panels
