// SPDX-License-Identifier: GPL-3.0-or-later
#include "rows.h"

#include "function_id.h"
#include "watermark_run.h"

#include <presets/watermark_records.h>

namespace brenvaldo::workspace {

namespace {

bool isImageTab(const panels::Panels& panels) { return !isTextTab(panels); }

} // namespace

Function imageWatermark()
{
    return {
        .id = functionId::imageWM,
        .title = QT_TRANSLATE_NOOP("FunctionTitle", "Image watermark"),
        .choice = {.section = Section::EditPhoto, .index = 0, .isTabSelected = isImageTab},
        .holders = withPreview(QLatin1String("vwWatermark")),
        .fieldTags = {.first = 300, .last = 399},
        .run = ListRun{},
        .presets = {{.make = presets::imageWatermarkRecord}},
    };
}

} // namespace brenvaldo::workspace
