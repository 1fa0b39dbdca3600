// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QString>
#include <QStringList>

namespace brenvaldo::metadata {

/// One row of the log of written photos: date, process, action, status ("OK" or "Failed"), name of
/// the file that was read and of the one that was written, and their paths.
[[nodiscard]] QStringList
metaLogRow(const QDateTime& date, const QString& status, const QString& path);

} // namespace brenvaldo::metadata
