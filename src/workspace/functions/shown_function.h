// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

namespace brenvaldo::panels {
class Panels;
}

namespace brenvaldo::workspace {

/// Id of the function whose panel is shown, after section, pop-up and tab; "" where there is none.
[[nodiscard]] QString shownFunction(const panels::Panels& panels);

} // namespace brenvaldo::workspace
