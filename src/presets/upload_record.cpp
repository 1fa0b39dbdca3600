// SPDX-License-Identifier: GPL-3.0-or-later
#include "upload_record.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::presets {

PresetRecord uploadRecord(panels::Panels& panels)
{
    panels::SortingPanel& upload = panels.vwFileManagementSorting;
    return {
        .process = u"batchUploadPhotos"_s,
        .action = u"FileManagement"_s,
        .before = PresetRecord::Before::ClearSecondViewAndSimulation,
        .fields = {
            {4, TextForm{&upload.tfAddKeyword}},
            {5, TextForm{&upload.tfAddTitle}},
            {6, TextForm{&upload.tfAddDescription}},
            {7, StateForm{&upload.cbAddToFavorite}},
        }};
}

} // namespace brenvaldo::presets
