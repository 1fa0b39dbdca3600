// SPDX-License-Identifier: GPL-3.0-or-later
#include "rows.h"

#include "function_id.h"

namespace brenvaldo::workspace {

Function fileRenaming()
{
    using enum HolderChange;
    return {
        .id = functionId::fileRenaming,
        .title = QT_TRANSLATE_NOOP("FunctionTitle", "Rename files"),
        .choice = {.section = Section::FileManagement, .index = 2},
        .holders = {QLatin1String("vwFileManagementRename"), Fill, Empty, Empty, Fill},
        .run = RenamingRun{},
    };
}

} // namespace brenvaldo::workspace
