// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "signal.h"

#include <QString>

namespace brenvaldo::platform {

/// Delivers notifications by name to their observers, at once and on the posting thread (the main
/// one).
class NotificationCenter
{
public:
    /// The observer gets the name that was posted.
    using Observer = std::function<void(const QString& name)>;

    [[nodiscard]] Subscription addObserver(const QString& name, Observer observer);
    void post(const QString& name) const;

private:
    std::map<QString, Signal<const QString&>> m_signals;
};

} // namespace brenvaldo::platform
