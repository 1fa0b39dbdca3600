// SPDX-License-Identifier: GPL-3.0-or-later
#include "rows.h"

#include <presets/image_records.h>

namespace brenvaldo::workspace {

Function rotatePhotos()
{
    return {
        .id = QLatin1String("rotatePhotos"),
        .title = QT_TRANSLATE_NOOP("FunctionTitle", "Rotate"),
        .choice = {.section = Section::EditPhoto, .index = 6},
        .holders = withPreview(QLatin1String("vwRotatePhotos")),
        .fieldTags = {.first = 81, .last = 100},
        .run = PhotoRun{},
        .photoBelow = PhotoBelow::Goes,
        .presets = {{.make = presets::rotationRecord}},
    };
}

} // namespace brenvaldo::workspace
