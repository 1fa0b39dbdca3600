// SPDX-License-Identifier: GPL-3.0-or-later
#include "rows.h"

#include <workspace/preview/photo_preview.h>

#include <imaging/dv_image_handling.h>
#include <panels/panels.h>
#include <presets/image_records.h>

#include <memory>

namespace brenvaldo::workspace {

namespace {

PhotoRun::Operation startTint(const RunContext& run)
{
    const auto settings = imaging::readSettings(run.subsystems.panels.vwAddTint);
    const auto handling = std::make_shared<imaging::DVImageHandling>();
    return [settings, handling](const PhotoOutput& output) -> std::optional<imaging::Outcome> {
        return handling->addTintToImage2(output.photo, settings, output.tail);
    };
}

std::optional<platform::graphics::Image>
tintedPhoto(const Subsystems& subsystems, const QString& path)
{
    const auto photo = subsystems.previewPhotos.storedPhoto(path);
    if (!photo)
        return std::nullopt;
    return subsystems.imageHandling.addTintToImage2Preview(
        *photo, imaging::readSettings(subsystems.panels.vwAddTint)
    );
}

} // namespace

Function addTint()
{
    return {
        .id = QLatin1String("addTint"),
        .title = QT_TRANSLATE_NOOP("FunctionTitle", "Tint"),
        .choice = {.section = Section::EditPhoto, .index = 1},
        .holders = withPreview(QLatin1String("vwAddTint")),
        .fieldTags = {.first = 400, .last = FieldTags::unbounded},
        .run = PhotoRun{.start = startTint},
        .preview = tintedPhoto,
        .presets = {{.make = presets::tintRecord}},
    };
}

} // namespace brenvaldo::workspace
