// SPDX-License-Identifier: GPL-3.0-or-later
#include "background_writer.h"

#include <platform/foundation/commit_turn.h>
#include <platform/foundation/handled_exception.h>
#include <platform/foundation/log.h>
#include <platform/graphics/engine_thread.h>

#include <algorithm>
#include <system_error>
#include <thread>

namespace brenvaldo::workspace {

namespace {

/// A finished file that waits for its turn holds a thread, and its bytes on the disk.
constexpr std::size_t waitingFilesPerFileInTheMaking = 4;

imaging::ResultWord wordOf(const std::function<imaging::ResultWord()>& save)
{
    try {
        return save();
    } catch (...) {
        platform::log(platform::handledException().reason());
        return imaging::ResultWord::Failed;
    }
}

} // namespace

struct BackgroundWriter::Job
{
    enum class State { Making, AwaitingTurn, Finished };

    explicit Job(Work toDo)
        : work(std::move(toDo))
    {
    }

    Work work; ///< of the job's thread until it has finished
    State state = State::Making;
    Finished finished;
    std::mutex logMutex; ///< threads of the engine log as well
    std::jthread thread = {};
};

BackgroundWriter::BackgroundWriter(const Limits& limits)
    : m_limits(limits)
{
}

BackgroundWriter::~BackgroundWriter()
{
    cancel();
    // The threads end before anything that they use goes away.
    for (const auto& job : m_jobs) {
        if (job->thread.joinable())
            job->thread.join();
    }
}

void BackgroundWriter::start(Work work)
{
    std::unique_lock lock(m_mutex);
    m_changed.wait(lock, [&] { return hasRoomFor(work); });
    Job& job = *m_jobs.emplace_back(std::make_unique<Job>(std::move(work)));
    try {
        job.thread = std::jthread([this, &job] { make(job); });
    } catch (const std::system_error&) { // there is no thread to be had: this one makes the file
        lock.unlock();
        make(job);
    }
}

bool BackgroundWriter::hasRoomFor(const Work& work) const
{
    int making = 0;
    std::size_t unfinished = 0;
    std::size_t memory = work.memory;
    for (const auto& job : m_jobs) {
        if (job->state == Job::State::Finished)
            continue;
        ++unfinished;
        memory += job->work.memory;
        making += job->state == Job::State::Making ? 1 : 0;
    }
    if (unfinished == 0)
        return true;
    // No file of photos is larger than its pixels in memory; beside the encoded file stands the one
    // that gets its metadata. So each file that goes side by side with others fits on the disk.
    return making < m_limits.files
        && unfinished < waitingFilesPerFileInTheMaking * static_cast<std::size_t>(m_limits.files)
        && memory <= m_limits.memory && 2 * memory <= work.diskSpace;
}

void BackgroundWriter::make(Job& job)
{
    const platform::graphics::EngineThread thread(
        {.threads = m_limits.engineThreads, .cancelled = m_cancelled}
    );
    const platform::ThreadLogSink log([&job](const QString& line) {
        const std::lock_guard lock(job.logMutex);
        job.finished.log.append(line);
    });
    const platform::CommitTurn turn([this, &job] { return awaitTurn(job); });
    const imaging::ResultWord word = wordOf(job.work.save);
    job.work.save = nullptr;
    const std::lock_guard lock(m_mutex);
    job.finished.word = word;
    job.state = Job::State::Finished;
    m_changed.notify_all();
}

bool BackgroundWriter::awaitTurn(Job& job)
{
    std::unique_lock lock(m_mutex);
    job.state = Job::State::AwaitingTurn;
    m_changed.notify_all();
    m_changed.wait(lock, [&] { return *m_cancelled || oldestUnfinished() == &job; });
    return !*m_cancelled;
}

const BackgroundWriter::Job* BackgroundWriter::oldestUnfinished() const
{
    const auto job = std::find_if(m_jobs.begin(), m_jobs.end(), [](const auto& each) {
        return each->state != Job::State::Finished;
    });
    return job == m_jobs.end() ? nullptr : job->get();
}

bool BackgroundWriter::hasFinished() const
{
    const std::lock_guard lock(m_mutex);
    return !m_jobs.empty() && m_jobs.front()->state == Job::State::Finished;
}

BackgroundWriter::Finished BackgroundWriter::takeFirst()
{
    std::unique_lock lock(m_mutex);
    m_changed.wait(lock, [&] { return m_jobs.front()->state == Job::State::Finished; });
    const std::unique_ptr<Job> job = std::move(m_jobs.front());
    m_jobs.pop_front();
    lock.unlock();
    if (job->thread.joinable())
        job->thread.join();
    return job->finished;
}

void BackgroundWriter::cancel()
{
    const std::lock_guard lock(m_mutex);
    *m_cancelled = true;
    m_changed.notify_all();
}

} // namespace brenvaldo::workspace
