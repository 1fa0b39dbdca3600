// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo_upload.h"

#include "function_id.h"
#include "rows.h"

#include <panels/panels.h>
#include <platform/foundation/literals.h>

namespace brenvaldo::workspace {

namespace {

bool isTabSelected(const panels::Panels& panels)
{
    return panels.vwFileManagementSorting.mySortTabView.selectedIdentifier() == u"3";
}

} // namespace

PhotoUpload readUpload(const panels::SortingPanel& panel, const QString& path)
{
    return {
        .path = path,
        .album = panel.theApplePhotosData.value(
            panel.myPhotosTableView.selectedRow(), u"photosAlbumName"_s
        ),
        .keyword = panel.tfAddKeyword.stringValue(),
        .title = panel.tfAddTitle.stringValue(),
        .description = panel.tfAddDescription.stringValue(),
        .favourite = QString::number(panel.cbAddToFavorite.state())};
}

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
        .run = InPlaceRun{.changesTheFile = false},
    };
}

} // namespace brenvaldo::workspace
