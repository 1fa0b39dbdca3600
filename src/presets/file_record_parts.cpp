// SPDX-License-Identifier: GPL-3.0-or-later
#include "file_record_parts.h"

#include <platform/foundation/literals.h>

namespace brenvaldo::presets {

PresetRecord fileRecord(const QString& process, std::vector<RecordField> fields)
{
    return {
        .process = process,
        .action = u"FileManagement"_s,
        .before = PresetRecord::Before::Nothing,
        .fields = std::move(fields)};
}

} // namespace brenvaldo::presets
