// SPDX-License-Identifier: GPL-3.0-or-later
#include "rows.h"

#include <imaging/dv_image_handling.h>
#include <imaging/resize_settings.h>
#include <panels/panels.h>
#include <presets/image_records.h>

namespace brenvaldo::workspace {

namespace {

using imaging::DVImageHandling;

/// A value of 0 is told, and tried all the same.
imaging::Outcome resizedToMaximum(const RunContext& run, const PhotoOutput& output)
{
    const auto [value, type]
        = imaging::readSettings(run.subsystems.panels.vwResizePhotos.dvVCUiScaleMaxView);
    if (value == 0)
        run.alert(wrongValueMessage());
    return DVImageHandling::hScalePhotosPercentage(output.photo, value, type, output.tail);
}

/// A box without width or height is told, and the photo passed over.
std::optional<imaging::Outcome> resizedToBox(const RunContext& run, const PhotoOutput& output)
{
    const auto [box, aspectState]
        = imaging::readSettings(run.subsystems.panels.vwResizePhotos.dvVCUiScaleFixView);
    if (box.width == 0 || box.height == 0) {
        run.alert(wrongSizeMessage());
        return std::nullopt;
    }
    return run.subsystems.imageHandling.hScalePhotosWidthAndHeight(
        output.photo, box, aspectState, output.tail
    );
}

PhotoRun::Operation start(const RunContext& run)
{
    return [&run](const PhotoOutput& output) -> std::optional<imaging::Outcome> {
        const auto& mode = run.subsystems.panels.vwResizePhotos.pubScaleType;
        if (mode.indexOfSelectedItem() == 0)
            return resizedToMaximum(run, output);
        return resizedToBox(run, output);
    };
}

void showMaximumFields(const Subsystems& subsystems)
{
    panels::ResizePanel& panel = subsystems.panels.vwResizePhotos;
    panel.dvVCUiResizeMainView.replaceViews(panel.dvVCUiScaleMaxView.name());
}

} // namespace

Function resizePhotos()
{
    return {
        .id = QLatin1String("resizePhotos"),
        .title = QT_TRANSLATE_NOOP("FunctionTitle", "Resize"),
        .choice = {.section = Section::EditPhoto, .index = 8},
        .holders = withoutPreview(QLatin1String("vwResizePhotos")),
        .whenShown = showMaximumFields,
        .run = PhotoRun{.start = start},
        .presets = {{.make = presets::resizeRecord}},
    };
}

} // namespace brenvaldo::workspace
