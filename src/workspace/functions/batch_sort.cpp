// SPDX-License-Identifier: GPL-3.0-or-later
#include "rows.h"

#include "function_id.h"

#include <panels/panels.h>
#include <presets/sorting_records.h>

namespace brenvaldo::workspace {

namespace {

bool isTabSelected(const panels::Panels& panels)
{
    return panels.vwFileManagementSorting.mySortTabView.selectedIdentifier() == u"2";
}

} // namespace

Function batchSort()
{
    using enum HolderChange;
    return {
        .id = functionId::batchSort,
        .title = QT_TRANSLATE_NOOP("FunctionTitle", "Sort by criteria"),
        .choice = {.section = Section::FileManagement, .index = 0, .isTabSelected = isTabSelected},
        .holders = {QLatin1String("vwFileManagementSorting"), Empty, Empty, Empty, Fill},
        .run = OwnButton{.action = QLatin1String("hSortFiles"), .message = batchSortMessage},
        .presets = {{.make = presets::batchSortRecord}},
    };
}

} // namespace brenvaldo::workspace
