// SPDX-License-Identifier: GPL-3.0-or-later
#include "rows.h"

#include "function_id.h"

#include <presets/code_record.h>

namespace brenvaldo::workspace {

Function codes()
{
    using enum HolderChange;
    return {
        .id = functionId::batchQR,
        .title = QT_TRANSLATE_NOOP("FunctionTitle", "QR and bar codes"),
        .choice = {.section = Section::FileManagement, .index = 4},
        .holders = {QLatin1String("vwQRBarCode"), Empty, Empty, Empty, Fill},
        .run = OwnButton{.action = QLatin1String("hGenerateCode"), .message = codeRunMessage},
        .presets = {{.make = presets::codeRecord}},
    };
}

} // namespace brenvaldo::workspace
