// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace brenvaldo::platform {

/// Keeps the lines that libraries write to standard error about themselves off it: the trace of the
/// JPEG XL decoder through its own source, and notes on the configuration of the fonts. All other
/// lines come through, as they are ended.
///
/// To be called once, before any of these libraries is at work.
void keepLibraryNotesAway();

} // namespace brenvaldo::platform
