// SPDX-License-Identifier: GPL-3.0-or-later
#include "rows.h"

#include <workspace/preview/photo_preview.h>

#include <imaging/dv_color_conversions.h>
#include <panels/panels.h>
#include <presets/image_records.h>

namespace brenvaldo::workspace {

namespace {

using imaging::DVColorConversions;

PhotoRun::Operation start(const RunContext& run)
{
    return [&run](const PhotoOutput& output) -> std::optional<imaging::Outcome> {
        const auto settings = imaging::readSettings(run.subsystems.panels.vwFilterPhotos);
        return DVColorConversions::hAddFilter(output.photo, settings, output.tail);
    };
}

std::optional<platform::graphics::Image> preview(const Subsystems& subsystems, const QString& path)
{
    const auto photo = subsystems.previewPhotos.photo(path);
    if (!photo)
        return std::nullopt;
    const auto settings = imaging::readSettings(subsystems.panels.vwFilterPhotos);
    return DVColorConversions::hAddFilterPreview(*photo, settings);
}

} // namespace

Function filters()
{
    return {
        .id = QLatin1String("filters"),
        .title = QT_TRANSLATE_NOOP("FunctionTitle", "Filters"),
        .choice = {.section = Section::EditPhoto, .index = 7},
        .holders = withPreview(QLatin1String("vwFilterPhotos")),
        .fieldTags = {.first = 51, .last = 70},
        .run = PhotoRun{.start = start},
        .preview = preview,
        .photoBelow = PhotoBelow::Goes,
        .presets = {{.make = presets::filterRecord}},
    };
}

} // namespace brenvaldo::workspace
