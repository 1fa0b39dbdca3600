// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/foundation/signal.h>

#include <QObject>

namespace brenvaldo::views {

/// Keeps an observer connected for as long as its owner lives.
class OwnedSubscription : public QObject
{
public:
    OwnedSubscription(platform::Subscription subscription, QObject* owner)
        : QObject(owner)
        , m_subscription(std::move(subscription))
    {
    }

private:
    platform::Subscription m_subscription;
};

inline void keepFor(QObject& owner, platform::Subscription subscription)
{
    new OwnedSubscription(std::move(subscription), &owner);
}

} // namespace brenvaldo::views
