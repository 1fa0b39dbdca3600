// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tool_box.h"

#include <panels/rename_panel.h>

namespace brenvaldo::files {

/// The transform of the selected tab with all its settings, as the line of a C-Action file.
[[nodiscard]] cToolBox::NewActionFile actionFile(const panels::RenamePanel& panel);

/// What file managers show for such a file.
[[nodiscard]] QImage actionFileIcon();

} // namespace brenvaldo::files
