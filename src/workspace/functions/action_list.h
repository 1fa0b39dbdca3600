// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "subsystems.h"

#include <controls/action_registry.h>
#include <platform/foundation/user_defaults.h>

namespace brenvaldo::workspace {

/// The chain of C-Actions that gives written files their names: its list grows by files of actions.
class ActionList
{
public:
    ActionList(const Subsystems& subsystems, const platform::UserDefaults& defaults);

    void registerActions(controls::ActionRegistry& actions);

    /// Asks for a file of an action and adds it.
    void hImportTWMCActions();
    /// Removes the row that is selected.
    void hRemoveTWMCActions();

private:
    const Subsystems& m_subsystems;
    const platform::UserDefaults& m_defaults;
};

} // namespace brenvaldo::workspace
