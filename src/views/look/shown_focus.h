// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <Qt>

namespace brenvaldo::views {

/// Whether a widget draws its focus once that has come for `reason`: not after a click, and as
/// `before` when the window merely becomes active again.
[[nodiscard]] inline bool showsFocus(Qt::FocusReason reason, bool before)
{
    switch (reason) {
    case Qt::MouseFocusReason:
        return false;
    case Qt::ActiveWindowFocusReason:
    case Qt::PopupFocusReason:
    case Qt::MenuBarFocusReason:
        return before;
    default:
        return true;
    }
}

} // namespace brenvaldo::views
