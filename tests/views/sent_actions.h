// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <controls/action_registry.h>
#include <controls/user_input.h>
#include <platform/foundation/literals.h>

namespace brenvaldo::test {

/// A registry that keeps the names and tags of the actions that were sent.
struct SentActions
{
    controls::ActionRegistry registry = {};
    controls::UserInput input{registry};
    QStringList names = {};
    QList<int> tags = {};

    /// Makes `control` send an action that is kept.
    void watch(controls::Control& control)
    {
        const QString action = u"sent."_s + control.name();
        control.addAction(action);
        registry.add(u"sent"_s, control.name(), [this, name = control.name()](const auto& sender) {
            names.append(name);
            tags.append(sender.tag);
        });
    }
};

} // namespace brenvaldo::test
