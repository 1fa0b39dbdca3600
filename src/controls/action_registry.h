// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/foundation/exceptions.h>
#include <platform/foundation/signal.h>

#include <QList>
#include <QString>

#include <functional>
#include <map>

namespace brenvaldo::controls {

class Control;

/// Who sent an action.
struct Sender
{
    int tag = 0;
    const Control* control = nullptr; ///< nothing when a menu or a script sent it
};

/// All actions of the program by class and name, such as "cGUIcontrols.hLoadImages".
///
/// An action is the border of failures: an exception raised in it, of whatever type, is logged with
/// its reason, told to the observers of `exceptionRaised`, and ends the action only.
class ActionRegistry
{
public:
    using Action = std::function<void(const Sender&)>;
    enum class Sent { Done, Raised, Unknown, Ambiguous };

    void add(const QString& className, const QString& action, Action run);

    /// Sends `name`: a full name, or the bare action's name when only one class has it.
    Sent send(const QString& name, const Sender& sender = {}) const;

    [[nodiscard]] bool knows(const QString& name) const;

    /// Full names, sorted.
    [[nodiscard]] QStringList names() const;

    platform::Signal<const platform::Exception&> exceptionRaised;

private:
    [[nodiscard]] QList<const Action*> find(const QString& name) const;

    std::map<QString, Action> m_actions;
};

} // namespace brenvaldo::controls
