// SPDX-License-Identifier: GPL-3.0-or-later
#include "work_queue.h"

#include <utility>

namespace brenvaldo::platform::services {

WorkQueue::~WorkQueue()
{
    {
        const std::lock_guard lock(m_mutex);
        m_isEnding = true;
        m_changed.notify_all();
    }
    if (m_thread.joinable())
        m_thread.join();
}

void WorkQueue::add(Work work, Kind kind)
{
    const std::lock_guard lock(m_mutex);
    m_pieces.push_back({.work = std::move(work), .kind = kind});
    m_awaited += kind == Kind::Awaited ? 1 : 0;
    m_changed.notify_all();
    if (!m_thread.joinable())
        m_thread = std::thread([this] { run(); });
}

void WorkQueue::waitForAwaited()
{
    std::unique_lock lock(m_mutex);
    m_changed.wait(lock, [this] { return m_awaited == 0; });
}

void WorkQueue::waitForAll()
{
    std::unique_lock lock(m_mutex);
    m_changed.wait(lock, [this] { return m_pieces.empty(); });
}

void WorkQueue::run()
{
    std::unique_lock lock(m_mutex);
    for (;;) {
        m_changed.wait(lock, [this] { return m_isEnding || !m_pieces.empty(); });
        if (m_pieces.empty())
            return;
        const Piece& first = m_pieces.front(); // others are added behind it meanwhile
        lock.unlock();
        first.work();
        lock.lock();
        m_awaited -= first.kind == Kind::Awaited ? 1 : 0;
        m_pieces.pop_front();
        m_changed.notify_all();
    }
}

} // namespace brenvaldo::platform::services
