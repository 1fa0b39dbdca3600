// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "preset_record.h"

#include <panels/panels.h>

/// \file
/// What the records of the image functions have in common.

namespace brenvaldo::presets {

using RecordFields = std::vector<RecordField>;

/// The destination folder, then `fields`, then the output choices.
[[nodiscard]] RecordFields withCommonFields(RecordFields fields, panels::Panels& panels);

/// A record of one of the image functions.
[[nodiscard]] PresetRecord editRecord(const QString& process, RecordFields fields);

/// A load gives `well` the colour of a text of six hexadecimal digits that another field keeps.
[[nodiscard]] RecordField hexColorField(int position, controls::ColorWell& well);

} // namespace brenvaldo::presets
