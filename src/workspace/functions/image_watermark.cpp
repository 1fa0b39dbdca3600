// SPDX-License-Identifier: GPL-3.0-or-later
#include "rows.h"

#include "function_id.h"
#include "watermark_run.h"

#include <presets/watermark_records.h>
#include <watermark/dv_watermark.h>

namespace brenvaldo::workspace {

namespace {

bool isImageTab(const panels::Panels& panels) { return !isTextTab(panels); }

void markWithImage(const ListRun::Photos& photos)
{
    photos.subsystems.watermark.setWatermarkImage(watermarkRun(photos), photos.sink);
}

std::optional<platform::graphics::Image>
markedWithImage(const Subsystems& subsystems, const QString& path)
{
    return subsystems.watermark.setWatermarkImagePreview(path);
}

} // namespace

Function imageWatermark()
{
    return {
        .id = functionId::imageWM,
        .title = QT_TRANSLATE_NOOP("FunctionTitle", "Image watermark"),
        .choice = {.section = Section::EditPhoto, .index = 0, .isTabSelected = isImageTab},
        .holders = withPreview(QLatin1String("vwWatermark")),
        .fieldTags = {.first = 300, .last = 399},
        .run = ListRun{.work = markWithImage},
        .preview = markedWithImage,
        .presets = {{.make = presets::imageWatermarkRecord}},
    };
}

} // namespace brenvaldo::workspace
