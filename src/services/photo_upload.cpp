// SPDX-License-Identifier: GPL-3.0-or-later
#include "photo_upload.h"

#include <panels/sorting_panel.h>
#include <platform/foundation/literals.h>

namespace brenvaldo::services {

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

} // namespace brenvaldo::services
