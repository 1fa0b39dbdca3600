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

} // namespace brenvaldo::platform
