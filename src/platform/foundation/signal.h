// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <utility>

namespace brenvaldo::platform {

/// Keeps an observer connected for as long as it lives; it may outlive the signal.
class Subscription
{
public:
    Subscription() = default;
    explicit Subscription(std::function<void()> disconnect)
        : m_disconnect(std::move(disconnect))
    {
    }
    Subscription(const Subscription&) = delete;
    Subscription& operator=(const Subscription&) = delete;
    Subscription(Subscription&& other) noexcept
        : m_disconnect(std::exchange(other.m_disconnect, nullptr))
    {
    }
    Subscription& operator=(Subscription&& other) noexcept
    {
        if (this != &other) {
            release();
            m_disconnect = std::exchange(other.m_disconnect, nullptr);
        }
        return *this;
    }
    ~Subscription() { release(); }

private:
    void release() noexcept
    {
        if (m_disconnect)
            std::exchange(m_disconnect, nullptr)();
    }

    std::function<void()> m_disconnect;
};

/// Calls every connected observer, in the order of connecting; main thread only.
///
/// Observers may connect and disconnect while the signal is being sent: a new one is called from
/// the next time on, a disconnected one is not called any more.
template <class... Arguments>
class Signal
{
public:
    using Observer = std::function<void(Arguments...)>;

    Signal() = default;
    Signal(const Signal&) = delete;
    Signal& operator=(const Signal&) = delete;
    Signal(Signal&&) = delete;
    Signal& operator=(Signal&&) = delete;
    ~Signal() = default;

    [[nodiscard]] Subscription connect(Observer observer) const
    {
        const int id = m_state->nextId++;
        m_state->observers.emplace(id, std::move(observer));
        return Subscription([state = std::weak_ptr<State>(m_state), id] {
            if (const auto alive = state.lock())
                alive->observers.erase(id);
        });
    }

    void operator()(Arguments... arguments) const
    {
        const auto state = m_state;
        const int end = state->nextId;
        for (auto next = state->observers.begin(); next != state->observers.end();) {
            const int id = next->first;
            if (id >= end)
                break;
            const Observer observer = next->second;
            observer(arguments...);
            next = state->observers.upper_bound(id);
        }
    }

private:
    struct State
    {
        std::map<int, Observer> observers;
        int nextId = 0;
    };

    std::shared_ptr<State> m_state = std::make_shared<State>();
};

} // namespace brenvaldo::platform
