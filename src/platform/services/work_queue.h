// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>
#include <thread>

namespace brenvaldo::platform::services {

/// Does one piece of work after the other on a thread of its own; what is left is done before it
/// goes away.
class WorkQueue
{
public:
    using Work = std::function<void()>;

    WorkQueue() = default;
    WorkQueue(const WorkQueue&) = delete;
    WorkQueue& operator=(const WorkQueue&) = delete;
    WorkQueue(WorkQueue&&) = delete;
    WorkQueue& operator=(WorkQueue&&) = delete;
    ~WorkQueue();

    /// `awaited` work is what `waitForAwaited` returns after.
    enum class Kind { Usual, Awaited };
    void add(Work work, Kind kind = Kind::Usual);

    /// Returns when the awaited work that was added before is done. Not for the queue's own thread.
    void waitForAwaited();

    /// Returns when nothing is left, added by the work itself too. Not for the queue's own thread.
    void waitForAll();

private:
    struct Piece
    {
        Work work;
        Kind kind;
    };

    void run();

    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::deque<Piece> m_pieces; ///< the first one is at work
    int m_awaited = 0;
    bool m_isEnding = false;
    std::thread m_thread; ///< begins with the first piece
};

} // namespace brenvaldo::platform::services
