// SPDX-License-Identifier: GPL-3.0-or-later
#include "rows.h"

#include <workspace/preview/photo_preview.h>

#include <imaging/dv_image_handling.h>
#include <panels/panels.h>
#include <presets/image_records.h>

namespace brenvaldo::workspace {

namespace {

PhotoRun::Operation start(const RunContext& run)
{
    return [&run](const PhotoOutput& output) -> imaging::Outcome {
        return run.subsystems.imageHandling.hAddFrame(
            output.photo, imaging::readSettings(run.subsystems.panels.vwFraming), output.tail
        );
    };
}

std::optional<platform::graphics::Image> framed(const Subsystems& subsystems, const QString& path)
{
    const auto photo = subsystems.previewPhotos.storedPhoto(path);
    if (!photo)
        return std::nullopt;
    return subsystems.imageHandling.hAddFramePreview(
        *photo, imaging::readSettings(subsystems.panels.vwFraming)
    );
}

} // namespace

Function framing()
{
    return {
        .id = QLatin1String("framing"),
        .title = QT_TRANSLATE_NOOP("FunctionTitle", "Frame"),
        .choice = {.section = Section::EditPhoto, .index = 2},
        .holders = withPreview(QLatin1String("vwFraming")),
        .fieldTags = {.first = 151, .last = 199},
        .run = PhotoRun{.start = start},
        .preview = framed,
        .photoBelow = PhotoBelow::Goes,
        .presets = {{.make = presets::framingRecord}},
    };
}

} // namespace brenvaldo::workspace
