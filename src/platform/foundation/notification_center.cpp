// SPDX-License-Identifier: GPL-3.0-or-later
#include "notification_center.h"

namespace brenvaldo::platform {

Subscription NotificationCenter::addObserver(const QString& name, Observer observer)
{
    return m_signals[name].connect(std::move(observer));
}

void NotificationCenter::post(const QString& name) const
{
    if (const auto found = m_signals.find(name); found != m_signals.end())
        found->second(name);
}

} // namespace brenvaldo::platform
