// SPDX-License-Identifier: GPL-3.0-or-later
#include "rows.h"

#include "function_id.h"

#include <panels/panels.h>
#include <presets/upload_record.h>
#include <services/photos_link.h>

namespace brenvaldo::workspace {

namespace {

bool isTabSelected(const panels::Panels& panels)
{
    return panels.vwFileManagementSorting.mySortTabView.selectedIdentifier() == u"3";
}

InPlaceRun::Operation read(const Subsystems& subsystems, const QString& path)
{
    const auto& panel = subsystems.panels.vwFileManagementSorting;
    return [&subsystems, upload = services::readUpload(panel, path)] {
        subsystems.photosLink.uploadToPhotos(upload);
        return imaging::ResultWord::None;
    };
}

} // namespace

Function photoUpload()
{
    using enum HolderChange;
    return {
        .id = functionId::batchUploadPhotos,
        .title = QT_TRANSLATE_NOOP("FunctionTitle", "Upload"),
        .choice
        = {.section = Section::FileManagement,
           .index = 0,
           .isTabSelected = isTabSelected,
           .onlyByItsTab = true},
        .holders = {QLatin1String("vwFileManagementSorting"), Empty, Empty, Empty, Empty},
        .run = InPlaceRun{.read = read, .changesTheFile = false},
        .presets = {{.make = presets::uploadRecord}},
    };
}

} // namespace brenvaldo::workspace
