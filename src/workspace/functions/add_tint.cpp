// SPDX-License-Identifier: GPL-3.0-or-later
#include "rows.h"

#include <presets/image_records.h>

namespace brenvaldo::workspace {

Function addTint()
{
    return {
        .id = QLatin1String("addTint"),
        .title = QT_TRANSLATE_NOOP("FunctionTitle", "Tint"),
        .choice = {.section = Section::EditPhoto, .index = 1},
        .holders = withPreview(QLatin1String("vwAddTint")),
        .fieldTags = {.first = 400, .last = FieldTags::unbounded},
        .run = PhotoRun{},
        .presets = {{.make = presets::tintRecord}},
    };
}

} // namespace brenvaldo::workspace
