// SPDX-License-Identifier: GPL-3.0-or-later
#include "action_registry.h"

#include <platform/foundation/handled_exception.h>
#include <platform/foundation/literals.h>
#include <platform/foundation/log.h>

namespace brenvaldo::controls {

void ActionRegistry::add(const QString& className, const QString& action, Action run)
{
    m_actions[className + QLatin1Char('.') + action] = std::move(run);
}

QList<const ActionRegistry::Action*> ActionRegistry::find(const QString& name) const
{
    if (const auto exact = m_actions.find(name); exact != m_actions.end())
        return {&exact->second};
    QList<const Action*> found;
    const QString suffix = QLatin1Char('.') + name;
    for (const auto& [fullName, action] : m_actions) {
        if (fullName.endsWith(suffix))
            found.append(&action);
    }
    return found;
}

ActionRegistry::Sent ActionRegistry::send(const QString& name, const Sender& sender) const
{
    const auto found = find(name);
    if (found.isEmpty())
        return Sent::Unknown;
    if (found.size() > 1)
        return Sent::Ambiguous;
    try {
        (*found.first())(sender);
        return Sent::Done;
    } catch (...) {
        const platform::Exception exception = platform::handledException();
        platform::log(name + u": "_s + exception.reason());
        exceptionRaised(exception);
        return Sent::Raised;
    }
}

bool ActionRegistry::knows(const QString& name) const { return find(name).size() == 1; }

QStringList ActionRegistry::names() const
{
    QStringList names;
    for (const auto& [name, action] : m_actions)
        names.append(name);
    return names;
}

} // namespace brenvaldo::controls
