// SPDX-License-Identifier: GPL-3.0-or-later
#include "rows.h"

#include <presets/image_records.h>

namespace brenvaldo::workspace {

Function framing()
{
    return {
        .id = QLatin1String("framing"),
        .title = QT_TRANSLATE_NOOP("FunctionTitle", "Frame"),
        .choice = {.section = Section::EditPhoto, .index = 2},
        .holders = withPreview(QLatin1String("vwFraming")),
        .fieldTags = {.first = 151, .last = 199},
        .run = PhotoRun{},
        .photoBelow = PhotoBelow::Goes,
        .presets = {{.make = presets::framingRecord}},
    };
}

} // namespace brenvaldo::workspace
