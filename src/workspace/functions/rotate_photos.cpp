// SPDX-License-Identifier: GPL-3.0-or-later
#include "rows.h"

#include <workspace/preview/photo_preview.h>

#include <imaging/dv_image_handling.h>
#include <imaging/rotate_settings.h>
#include <panels/panels.h>
#include <presets/image_records.h>

namespace brenvaldo::workspace {

namespace {

using imaging::DVImageHandling;

PhotoRun::Operation start(const RunContext& run)
{
    return [&run](const PhotoOutput& output) {
        const auto settings = imaging::readSettings(run.subsystems.panels.vwRotatePhotos);
        return DVImageHandling::hRotatePicture(output.photo, settings, output.tail);
    };
}

std::optional<platform::graphics::Image> rotated(const Subsystems& subsystems, const QString& path)
{
    const auto photo = subsystems.previewPhotos.storedPhoto(path);
    if (!photo)
        return std::nullopt;
    return DVImageHandling::hRotatePicturesPreview(
        *photo, imaging::readSettings(subsystems.panels.vwRotatePhotos)
    );
}

} // namespace

Function rotatePhotos()
{
    return {
        .id = QLatin1String("rotatePhotos"),
        .title = QT_TRANSLATE_NOOP("FunctionTitle", "Rotate"),
        .choice = {.section = Section::EditPhoto, .index = 6},
        .holders = withPreview(QLatin1String("vwRotatePhotos")),
        .fieldTags = {.first = 81, .last = 100},
        .run = PhotoRun{.start = start},
        .preview = rotated,
        .photoBelow = PhotoBelow::Goes,
        .presets = {{.make = presets::rotationRecord}},
    };
}

} // namespace brenvaldo::workspace
