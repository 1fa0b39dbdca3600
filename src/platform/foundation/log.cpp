// SPDX-License-Identifier: GPL-3.0-or-later
#include "log.h"

#include <cstdio>
#include <mutex>
#include <utility>

namespace brenvaldo::platform {

namespace {

struct Log
{
    std::mutex mutex;
    LogSink sink;
};

Log& sharedLog()
{
    static Log log;
    return log;
}

LogSink& sinkOfThread()
{
    thread_local LogSink sink;
    return sink;
}

} // namespace

void log(const QString& line)
{
    if (const LogSink& own = sinkOfThread()) {
        own(line);
        return;
    }
    Log& shared = sharedLog();
    const std::scoped_lock lock(shared.mutex);
    if (shared.sink) {
        shared.sink(line);
        return;
    }
    const QByteArray text = line.toUtf8() + '\n';
    std::fwrite(text.constData(), 1, static_cast<std::size_t>(text.size()), stderr);
}

void setLogSink(LogSink sink)
{
    Log& shared = sharedLog();
    const std::scoped_lock lock(shared.mutex);
    shared.sink = std::move(sink);
}

ThreadLogSink::ThreadLogSink(LogSink sink)
    : m_before(std::exchange(sinkOfThread(), std::move(sink)))
{
}

ThreadLogSink::~ThreadLogSink() { sinkOfThread() = std::move(m_before); }

const LogSink& ThreadLogSink::current() { return sinkOfThread(); }

} // namespace brenvaldo::platform
