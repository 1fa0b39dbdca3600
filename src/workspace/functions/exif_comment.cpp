// SPDX-License-Identifier: GPL-3.0-or-later
#include "rows.h"

namespace brenvaldo::workspace {

Function exifComment()
{
    using enum HolderChange;
    return {
        .id = QLatin1String("batchExifUC"),
        .title = QT_TRANSLATE_NOOP("FunctionTitle", "EXIF and IPTC"),
        .choice = {.section = Section::FileManagement, .index = 1},
        .holders = {QLatin1String("vwFileManagementEXIF"), Empty, Empty, Empty, Empty},
        .presetButtons = PresetButtons::LeaveAsTheyWere,
        .run = InPlaceRun{},
    };
}

} // namespace brenvaldo::workspace
