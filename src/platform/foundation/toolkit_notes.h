// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

namespace brenvaldo::platform {

/// Keeps what the toolkit notes about itself (fonts, folders, plugins of the desktop) off standard
/// error, which tells of the user's work alone. What stops the program is still told.
///
/// To be called before the application object is made. Notes that QT_LOGGING_RULES asks for come
/// through.
void keepToolkitNotesAway();

} // namespace brenvaldo::platform
