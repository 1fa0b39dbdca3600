// SPDX-License-Identifier: GPL-3.0-or-later
#include "rows.h"

#include <presets/image_records.h>

namespace brenvaldo::workspace {

Function roundings()
{
    return {
        .id = QLatin1String("roundings"),
        .title = QT_TRANSLATE_NOOP("FunctionTitle", "Rounded corners"),
        .choice = {.section = Section::EditPhoto, .index = 3},
        .holders = withPreview(QLatin1String("vwRoundings")),
        .fieldTags = {.first = 101, .last = 150},
        .run = PhotoRun{},
        .photoBelow = PhotoBelow::Goes,
        .presets = {{.make = presets::roundingsRecord}},
    };
}

} // namespace brenvaldo::workspace
