// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayList>
#include <QString>

namespace brenvaldo::platform::storage {

/// Replaces the contents of the file at `path` as a whole, or leaves it as it is. Mode, owner and
/// extended attributes stay; a write-protected file is left alone. The pieces may be views of the
/// file itself.
///
/// Answers "" on success, and otherwise why the file stayed, as a text for the log.
[[nodiscard]] QString replaceContents(const QString& path, const QByteArrayList& pieces);

} // namespace brenvaldo::platform::storage
