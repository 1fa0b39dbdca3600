// SPDX-License-Identifier: GPL-3.0-or-later
#include "rows.h"

#include "function_id.h"

namespace brenvaldo::workspace {

Function gallery()
{
    using enum HolderChange;
    return {
        .id = functionId::htmlExport,
        .title = QT_TRANSLATE_NOOP("FunctionTitle", "Web gallery"),
        .choice = {.section = Section::Gallery},
        .holders = {QLatin1String("vwHtmlExport"), Empty, Fill, Empty, Fill},
        .run = ListRun{},
    };
}

} // namespace brenvaldo::workspace
