// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <chrono>

namespace brenvaldo::platform {

/// Delivers the waiting events of the main thread; returns as soon as none is waiting, and after
/// `atMost` in any case. Without an application object it does nothing.
void pumpEvents(std::chrono::microseconds atMost);

} // namespace brenvaldo::platform
