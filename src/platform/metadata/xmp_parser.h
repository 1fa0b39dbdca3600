// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <mutex>

namespace brenvaldo::platform::metadata {

/// Starts the XMP parser and keeps it to one thread: the toolkit behind it has global state.
[[nodiscard]] std::unique_lock<std::mutex> lockedXmpParser();

} // namespace brenvaldo::platform::metadata
