// SPDX-License-Identifier: GPL-3.0-or-later
#include "rows.h"

#include <imaging/crop_rules.h>
#include <imaging/crop_settings.h>
#include <imaging/dv_image_handling.h>
#include <panels/panels.h>
#include <platform/foundation/literals.h>
#include <presets/image_records.h>

namespace brenvaldo::workspace {

namespace {

/// The settings for the photo at `path`; a percentage that leaves nothing is put right in its
/// field.
imaging::CropSettings settingsFor(const Subsystems& subsystems, const QString& path)
{
    panels::CropPanel& panel = subsystems.panels.vwCropPhotos;
    const imaging::CropSettings settings = imaging::readSettings(panel, path);
    if (imaging::cutsOffTooMuch(settings))
        panel.dvVCUiCropMinusView.tfCropCutOff.setStringValue(u"0"_s);
    return settings;
}

PhotoRun::Operation start(const RunContext& run)
{
    return [&run](const PhotoOutput& output) {
        return run.subsystems.imageHandling.hCropPhotos(
            output.photo, settingsFor(run.subsystems, output.photo.source), output.tail
        );
    };
}

std::optional<platform::graphics::Image> outlined(const Subsystems& subsystems, const QString& path)
{
    return subsystems.imageHandling.hCropPhotosPreview(path, settingsFor(subsystems, path));
}

void showSizeFields(const Subsystems& subsystems)
{
    panels::CropPanel& panel = subsystems.panels.vwCropPhotos;
    panel.dvVCUiCropTypeView.replaceViews(panel.dvVCUiCropWxHView.name());
}

} // namespace

Function cropPhotos()
{
    return {
        .id = QLatin1String("cropPhotos"),
        .title = QT_TRANSLATE_NOOP("FunctionTitle", "Crop"),
        .choice = {.section = Section::EditPhoto, .index = 9},
        .holders = withPreview(QLatin1String("vwCropPhotos")),
        .fieldTags = {.first = 71, .last = 80},
        .whenShown = showSizeFields,
        .run = PhotoRun{.start = start},
        .preview = outlined,
        .presets = {{.make = presets::cropRecord}},
    };
}

} // namespace brenvaldo::workspace
