// SPDX-License-Identifier: GPL-3.0-or-later
#include "rows.h"

#include "function_id.h"

#include <gallery/responsive_design.h>
#include <presets/gallery_record.h>

namespace brenvaldo::workspace {

namespace {

void makeGallery(const ListRun::Photos& photos)
{
    photos.subsystems.gallery.hCreateResponsiveHTML(photos.destination, photos.sink);
}

void showTemplate(const Subsystems& subsystems) { subsystems.gallery.showTemplateOfPreset(); }

} // namespace

Function gallery()
{
    using enum HolderChange;
    return {
        .id = functionId::htmlExport,
        .title = QT_TRANSLATE_NOOP("FunctionTitle", "Web gallery"),
        .choice = {.section = Section::Gallery},
        .holders = {QLatin1String("vwHtmlExport"), Empty, Fill, Empty, Fill},
        .run = ListRun{.work = makeGallery, .takes = Takes::AllTicked},
        .presets = {{.make = presets::galleryRecord}},
        .whenPresetLoaded = showTemplate,
    };
}

} // namespace brenvaldo::workspace
