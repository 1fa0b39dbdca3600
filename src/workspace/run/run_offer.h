// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace brenvaldo::controls {
class ActionRegistry;
}

/// \file
/// What the process button would do.

namespace brenvaldo::workspace {

struct Function;

enum class RunOffer {
    Run, ///< it works on the ticked photos
    Message, ///< it tells which button of the panel does the work
    Nothing, ///< the buttons of the panel do the work
    ComesLater ///< nothing in this version does the work
};

/// A function is in this version when its operation is there, or the action of its own button.
/// Null stands for none.
[[nodiscard]] RunOffer runOffer(const Function* function, const controls::ActionRegistry& actions);

} // namespace brenvaldo::workspace
