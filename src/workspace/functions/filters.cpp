// SPDX-License-Identifier: GPL-3.0-or-later
#include "rows.h"

#include <presets/image_records.h>

namespace brenvaldo::workspace {

Function filters()
{
    return {
        .id = QLatin1String("filters"),
        .title = QT_TRANSLATE_NOOP("FunctionTitle", "Filters"),
        .choice = {.section = Section::EditPhoto, .index = 7},
        .holders = withPreview(QLatin1String("vwFilterPhotos")),
        .fieldTags = {.first = 51, .last = 70},
        .run = PhotoRun{},
        .photoBelow = PhotoBelow::Goes,
        .presets = {{.make = presets::filterRecord}},
    };
}

} // namespace brenvaldo::workspace
