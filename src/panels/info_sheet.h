// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "layout.h"

#include <controls/text_controls.h>
#include <platform/foundation/literals.h>

namespace brenvaldo::panels {

/// The sheet that shows a help text.
struct InfoSheet : PanelView
{
    InfoSheet();

    /// Named as the view is.
    controls::Sheet sheet{name()};
    controls::TextField tfInfoTitle{u"tfInfoTitle"_s};
    controls::TextView tfInfoDescription{u"tfInfoDescription"_s};
    controls::Button btnCloseInfo{
        u"btnCloseInfo"_s, u"Close"_s, u"cSheetControl.closeInfoSheetObjC"_s};
};

/// The sheet that tells of a newer version.
struct ApplicationVersionSheet : PanelView
{
    ApplicationVersionSheet();

    /// Named as the view is.
    controls::Sheet sheet{name()};
    controls::TextField tfNewApplicationVersion{u"tfNewApplicationVersion"_s};
    controls::TextView tvWhatsNew{u"tvWhatsNew"_s};
    controls::Button btnCloseVersion{
        u"btnCloseVersion"_s, u"Close"_s, u"cAppUpdater.closeApplicationVersionSheetObjC"_s};
};

} // namespace brenvaldo::panels
