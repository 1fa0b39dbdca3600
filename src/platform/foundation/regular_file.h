// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QFile>

namespace brenvaldo::platform {

/// Opens `file` for reading if it is a regular file. Never waits, as a pipe that nobody writes to
/// would; devices, sockets and folders are refused.
[[nodiscard]] bool openRegularFile(QFile& file);

} // namespace brenvaldo::platform
