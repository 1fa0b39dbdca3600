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
        return run.subsystems.imageHandling.hAddRoundings(
            output.photo, imaging::readSettings(run.subsystems.panels.vwRoundings), output.tail
        );
    };
}

std::optional<platform::graphics::Image> rounded(const Subsystems& subsystems, const QString& path)
{
    const auto photo = subsystems.previewPhotos.storedPhoto(path);
    if (!photo)
        return std::nullopt;
    return subsystems.imageHandling.hAddRoundingsPreview(
        *photo, imaging::readSettings(subsystems.panels.vwRoundings)
    );
}

} // namespace

Function roundings()
{
    return {
        .id = QLatin1String("roundings"),
        .title = QT_TRANSLATE_NOOP("FunctionTitle", "Rounded corners"),
        .choice = {.section = Section::EditPhoto, .index = 3},
        .holders = withPreview(QLatin1String("vwRoundings")),
        .fieldTags = {.first = 101, .last = 150},
        .run = PhotoRun{.start = start},
        .preview = rounded,
        .photoBelow = PhotoBelow::Goes,
        .presets = {{.make = presets::roundingsRecord}},
    };
}

} // namespace brenvaldo::workspace
