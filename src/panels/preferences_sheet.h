// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "layout.h"

#include <controls/text_controls.h>
#include <platform/foundation/literals.h>

namespace brenvaldo::panels {

/// The sheet in which the folder of the support files is chosen, and how many photos are worked on
/// at a time.
struct PreferencesSheet : PanelView
{
    PreferencesSheet();

    /// Named as the view is.
    controls::Sheet sheet{name()};
    controls::TextField tfLibraryFilePath{u"tfLibraryFilePath"_s};
    controls::Button btnChooseLibraryDestination{
        u"btnChooseLibraryDestination"_s,
        u"Choose\u2026"_s,
        u"cSheetControl.chooseLibraryDestination"_s};
    controls::TextField tfPhotosAtATime{u"tfPhotosAtATime"_s};
    controls::Button btnClosePreferences{
        u"btnClosePreferences"_s, u"Close"_s, u"cSheetControl.closePreferencesSheetObjC"_s};
};

} // namespace brenvaldo::panels
