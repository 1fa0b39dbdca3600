// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <functional>

namespace brenvaldo::platform {

using LogSink = std::function<void(const QString& line)>;

/// Writes one line to the log: standard error, unless a sink is set. Safe from any thread.
void log(const QString& line);

/// Sends all further lines to `sink`; an empty one restores standard error.
void setLogSink(LogSink sink);

/// Sends the lines of this thread to a sink of their own for as long as it lives.
class ThreadLogSink
{
public:
    explicit ThreadLogSink(LogSink sink);
    ThreadLogSink(const ThreadLogSink&) = delete;
    ThreadLogSink& operator=(const ThreadLogSink&) = delete;
    ThreadLogSink(ThreadLogSink&&) = delete;
    ThreadLogSink& operator=(ThreadLogSink&&) = delete;
    ~ThreadLogSink();

    /// That of this thread, to hand on to threads that work for it; empty when there is none.
    [[nodiscard]] static const LogSink& current();

private:
    LogSink m_before;
};

} // namespace brenvaldo::platform
