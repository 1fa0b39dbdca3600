// SPDX-License-Identifier: GPL-3.0-or-later
#include "rows.h"

#include <imaging/dv_image_handling.h>
#include <imaging/frame_rules.h>
#include <panels/panels.h>
#include <presets/image_records.h>

namespace brenvaldo::workspace {

namespace {

using imaging::DVImageHandling;

PhotoRun::Operation start(const RunContext& run)
{
    return [&run, opacity = 0.0](const PhotoOutput& output) mutable -> imaging::Outcome {
        const auto settings = imaging::readSettings(run.subsystems.panels.vwFraming);
        opacity = imaging::frameOpacity(settings, opacity);
        return DVImageHandling::hAddFrame(output.photo, settings, opacity, output.tail);
    };
}

std::optional<platform::graphics::Image> framed(const Subsystems& subsystems, const QString& path)
{
    return DVImageHandling::hAddFramePreview(
        path, imaging::readSettings(subsystems.panels.vwFraming)
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
