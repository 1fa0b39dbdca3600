// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "batch_operations.h"

#include <controls/action_registry.h>
#include <panels/panels.h>

/// \file
/// What the process button is good for while a function is shown.

namespace brenvaldo::workspace {

enum class RunOffer {
    Run, ///< it works on the ticked photos
    Message, ///< it tells which button of the panel does the work
    Nothing, ///< the buttons of the panel do the work
    ComesLater ///< nothing in this version does the work
};

/// The function whose panel is shown, after section, pop-up and tab.
[[nodiscard]] QString shownFunction(const panels::Panels& panels);

/// A function is in this version when its operation is there, or the action of its own button.
[[nodiscard]] RunOffer runOffer(
    const QString& function,
    const BatchOperations& operations,
    const controls::ActionRegistry& actions
);

} // namespace brenvaldo::workspace
