// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "preset_record.h"

namespace brenvaldo::presets {

/// A record of the functions that manage files; a load switches nothing off before it.
[[nodiscard]] PresetRecord fileRecord(const QString& process, std::vector<RecordField> fields);

} // namespace brenvaldo::presets
