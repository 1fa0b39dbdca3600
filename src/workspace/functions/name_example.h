// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <panels/rename_panel.h>
#include <workspace/list/photo_list.h>

#include <QString>

namespace brenvaldo::workspace {

/// What a renaming would make of the first ticked entry, in two lines: its name, and the new one or
/// why there is none. A sentence without an entry.
[[nodiscard]] QString nameExample(const panels::RenamePanel& panel, const PhotoList& photos);

} // namespace brenvaldo::workspace
