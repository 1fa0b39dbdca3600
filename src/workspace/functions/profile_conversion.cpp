// SPDX-License-Identifier: GPL-3.0-or-later
#include "rows.h"

#include <presets/image_records.h>

namespace brenvaldo::workspace {

/// Leaves type and destination as the function before had them.
Function profileConversion()
{
    using enum HolderChange;
    return {
        .id = QLatin1String("profileConversion"),
        .title = QT_TRANSLATE_NOOP("FunctionTitle", "Colour profile"),
        .choice = {.section = Section::EditPhoto, .index = 4},
        .holders = {QLatin1String("vwProfileConversion"), Fill, Fill, LeaveAsItWas, LeaveAsItWas},
        .run = PhotoRun{},
        .presets = {{.make = presets::profileRecord}},
    };
}

} // namespace brenvaldo::workspace
