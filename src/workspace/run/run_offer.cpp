// SPDX-License-Identifier: GPL-3.0-or-later
#include "run_offer.h"

#include <controls/action_registry.h>
#include <workspace/functions/function.h>

namespace brenvaldo::workspace {

RunOffer runOffer(const Function* function, const controls::ActionRegistry& actions)
{
    if (!function)
        return RunOffer::ComesLater;
    if (const auto* button = std::get_if<OwnButton>(&function->run)) {
        if (!actions.knows(button->action))
            return RunOffer::ComesLater;
        return button->message ? RunOffer::Message : RunOffer::Nothing;
    }
    return hasOperation(function->run) ? RunOffer::Run : RunOffer::ComesLater;
}

} // namespace brenvaldo::workspace
