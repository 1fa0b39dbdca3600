// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QString>

namespace brenvaldo::platform {

/// The local date and time as a text that may stand in a file name: "15-Nov-2026T10-44-33".
///
/// The months are English and have three letters each, whatever the locale; an invalid date
/// gives "".
[[nodiscard]] QString dateTextForFileName(const QDateTime& date);

} // namespace brenvaldo::platform
