// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "layout.h"

#include <controls/image_view.h>
#include <controls/text_controls.h>

namespace brenvaldo::panels {

/// The sheet in which settings are kept under a name and put back.
struct PresetsSheet : PanelView
{
    PresetsSheet();

    /// Named as the view is.
    controls::Sheet sheet{name()};
    controls::TextField tfInputPDM{u"tfInputPDM"_qs};
    controls::Button btnAddPreset{u"btnAddPreset"_qs, u"Save"_qs, u"cPresetManager.hAddPreset"_qs};
    controls::ArrayController thePresetsData{
        u"thePresetsData"_qs, {u"nmPreset"_qs, u"nmProces"_qs, u"nmbrAction"_qs}};
    controls::TableView myPresetsTableView{u"myPresetsTableView"_qs, thePresetsData};
    controls::Button btnApplyPreset{
        u"btnApplyPreset"_qs, u"Use these settings"_qs, u"cPresetManager.hApplySelectedPreset"_qs};
    controls::Button btnRemovePreset{
        u"btnRemovePreset"_qs, u"Remove"_qs, u"cPresetManager.hRemovePreset"_qs};
    controls::Button btnClosePresets{
        u"btnClosePresets"_qs, u"Close"_qs, u"cPresetManager.closePresetsSheetObjC"_qs};
    /// A second picture, which a load of a preset clears.
    controls::ImageView my2ndView{u"my2ndView"_qs};
};

} // namespace brenvaldo::panels
