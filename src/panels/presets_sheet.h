// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "layout.h"

#include <controls/image_view.h>
#include <controls/text_controls.h>
#include <platform/foundation/literals.h>

namespace brenvaldo::panels {

/// The sheet in which settings are kept under a name and put back.
struct PresetsSheet : PanelView
{
    PresetsSheet();

    /// Named as the view is.
    controls::Sheet sheet{name()};
    controls::TextField tfInputPDM{u"tfInputPDM"_s};
    controls::Button btnAddPreset{u"btnAddPreset"_s, u"Save"_s, u"cPresetManager.hAddPreset"_s};
    controls::ArrayController thePresetsData{
        u"thePresetsData"_s, {u"nmPreset"_s, u"nmProces"_s, u"nmbrAction"_s}};
    controls::TableView myPresetsTableView{u"myPresetsTableView"_s, thePresetsData};
    controls::Button btnApplyPreset{
        u"btnApplyPreset"_s, u"Use these settings"_s, u"cPresetManager.hApplySelectedPreset"_s};
    controls::Button btnRemovePreset{
        u"btnRemovePreset"_s, u"Remove"_s, u"cPresetManager.hRemovePreset"_s};
    controls::Button btnClosePresets{
        u"btnClosePresets"_s, u"Close"_s, u"cPresetManager.closePresetsSheetObjC"_s};
    /// A second picture, which a load of a preset clears.
    controls::ImageView my2ndView{u"my2ndView"_s};
};

} // namespace brenvaldo::panels
