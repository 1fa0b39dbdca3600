// SPDX-License-Identifier: GPL-3.0-or-later
#include "rows.h"

#include "function_id.h"
#include "watermark_run.h"

#include <presets/watermark_records.h>
#include <watermark/dv_watermark.h>

namespace brenvaldo::workspace {

namespace {

void markWithText(const ListRun::Photos& photos)
{
    photos.subsystems.watermark.setWatermarkText(watermarkRun(photos), photos.sink);
}

std::optional<platform::graphics::Image>
markedWithText(const Subsystems& subsystems, const QString& path)
{
    return subsystems.watermark.setWatermarkTextPreview(path);
}

} // namespace

Function textWatermark()
{
    return {
        .id = functionId::textWM,
        .title = QT_TRANSLATE_NOOP("FunctionTitle", "Text watermark"),
        .choice = {.section = Section::EditPhoto, .index = 0, .isTabSelected = isTextTab},
        .holders = withPreview(QLatin1String("vwWatermark")),
        .fieldTags = {.first = 200, .last = 299},
        .run = ListRun{.work = markWithText},
        .preview = markedWithText,
        .presets = {{.make = presets::textWatermarkRecord}},
    };
}

} // namespace brenvaldo::workspace
