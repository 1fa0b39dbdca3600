// SPDX-License-Identifier: GPL-3.0-or-later
#include "rows.h"

#include "function_id.h"

#include <panels/panels.h>
#include <presets/sorting_records.h>

namespace brenvaldo::workspace {

namespace {

bool isTabSelected(const panels::Panels& panels)
{
    return panels.vwFileManagementSorting.mySortTabView.selectedIdentifier() == u"1";
}

} // namespace

Function sortByHand()
{
    using enum HolderChange;
    return {
        .id = functionId::manSort,
        .title = QT_TRANSLATE_NOOP("FunctionTitle", "Sort by hand"),
        .choice = {.section = Section::FileManagement, .index = 0, .isTabSelected = isTabSelected},
        .holders = {QLatin1String("vwFileManagementSorting"), Empty, Empty, Empty, Empty},
        .run = OwnButton{.action = QLatin1String("hCopyFileToFolder")},
        .presets = {{.make = presets::manSortRecord}},
    };
}

} // namespace brenvaldo::workspace
