// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <imaging/result_word.h>

#include <QStringList>

#include <atomic>
#include <condition_variable>
#include <cstddef>
#include <deque>
#include <functional>
#include <memory>
#include <mutex>

namespace brenvaldo::workspace {

/// Makes files on threads of its own, side by side; each is put in its place when those that were
/// started before it stand or have failed.
///
/// All calls come from one thread.
class BackgroundWriter
{
public:
    struct Limits
    {
        int files = 1; ///< in the making at once, at least 1
        int engineThreads = 0; ///< for each; 0: as many as there are cores
        std::size_t memory = 0; ///< of all together; a single file may go beyond it
    };

    /// One file; makes it by `save` and answers its word.
    struct Work
    {
        std::function<imaging::ResultWord()> save;
        std::size_t memory = 0; ///< while it is made
        std::size_t diskSpace = 0; ///< free for this run at present
    };

    struct Finished
    {
        imaging::ResultWord word = imaging::ResultWord::None;
        QStringList log; ///< what was logged on the way
    };

    explicit BackgroundWriter(const Limits& limits);
    BackgroundWriter(const BackgroundWriter&) = delete;
    BackgroundWriter& operator=(const BackgroundWriter&) = delete;
    BackgroundWriter(BackgroundWriter&&) = delete;
    BackgroundWriter& operator=(BackgroundWriter&&) = delete;
    /// Throws away what doesn't stand yet.
    ~BackgroundWriter();

    /// Waits for room within the limits, and begins.
    void start(Work work);

    /// True when the oldest file stands or has failed.
    [[nodiscard]] bool hasFinished() const;

    /// The oldest file that was not taken yet; waits for it. There must be one.
    [[nodiscard]] Finished takeFirst();

    /// From now on, files fail soon and are not put in place.
    void cancel();

private:
    struct Job;

    [[nodiscard]] bool hasRoomFor(const Work& work) const;
    void make(Job& job);
    [[nodiscard]] bool awaitTurn(Job& job);
    [[nodiscard]] const Job* oldestUnfinished() const;

    Limits m_limits;
    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    std::shared_ptr<std::atomic<bool>> m_cancelled = std::make_shared<std::atomic<bool>>(false);
    std::deque<std::unique_ptr<Job>> m_jobs; ///< in the order of their places
};

} // namespace brenvaldo::workspace
