// SPDX-License-Identifier: GPL-3.0-or-later
#include "rows.h"

#include <panels/panels.h>
#include <presets/image_records.h>

namespace brenvaldo::workspace {

namespace {

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
        .run = PhotoRun{},
        .presets = {{.make = presets::cropRecord}},
    };
}

} // namespace brenvaldo::workspace
