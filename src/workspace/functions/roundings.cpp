// SPDX-License-Identifier: GPL-3.0-or-later
#include "rows.h"

#include <imaging/dv_image_handling.h>
#include <panels/panels.h>
#include <presets/image_records.h>

namespace brenvaldo::workspace {

namespace {

using imaging::DVImageHandling;

PhotoRun::Operation start(const RunContext& run)
{
    return [&run](const PhotoOutput& output) -> imaging::Outcome {
        return DVImageHandling::hAddRoundings(
            output.photo, imaging::readSettings(run.subsystems.panels.vwRoundings), output.tail
        );
    };
}

std::optional<platform::graphics::Image> rounded(const Subsystems& subsystems, const QString& path)
{
    return DVImageHandling::hAddRoundingsPreview(
        path, imaging::readSettings(subsystems.panels.vwRoundings)
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
