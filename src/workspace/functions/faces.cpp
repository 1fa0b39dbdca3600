// SPDX-License-Identifier: GPL-3.0-or-later
#include "rows.h"

namespace brenvaldo::workspace {

Function faces()
{
    return {
        .id = QLatin1String("faces"),
        .title = QT_TRANSLATE_NOOP("FunctionTitle", "Cut out faces"),
        .choice = {.section = Section::EditPhoto, .index = 5},
        .holders = withoutPreview(QLatin1String("vwCopyFaces")),
        .run = PhotoRun{},
    };
}

} // namespace brenvaldo::workspace
