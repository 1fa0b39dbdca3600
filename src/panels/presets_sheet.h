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

    controls::Sheet sheet; ///< named as the view is
    controls::TextField tfInputPDM;
    controls::Button btnAddPreset;
    controls::ArrayController thePresetsData;
    controls::TableView myPresetsTableView;
    controls::Button btnApplyPreset;
    controls::Button btnRemovePreset;
    controls::Button btnClosePresets;
    controls::ImageView my2ndView; ///< a second picture, which a load of a preset clears
};

} // namespace brenvaldo::panels
