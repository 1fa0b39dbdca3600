// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <controls/action_registry.h>
#include <platform/storage/desktop.h>

namespace brenvaldo::services {

/// Makes the actions known that open the pages of the maker; `desktop` must outlive them.
void registerWebLinks(controls::ActionRegistry& actions, platform::storage::Desktop& desktop);

} // namespace brenvaldo::services
