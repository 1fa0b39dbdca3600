// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

#include <optional>

/// \file
/// How the words after a command are read.

namespace brenvaldo::script {

/// A decimal number from 0 to below `count`; nothing for any other word.
[[nodiscard]] std::optional<int> indexBelow(int count, const QString& word);

/// 0 or 1; nothing for any other word.
[[nodiscard]] std::optional<int> flag(const QString& word);

/// The item that `word` names: an index into `titles`, or a title; "=9" is the title "9".
[[nodiscard]] std::optional<int> itemOf(const QStringList& titles, const QString& word);

/// The absolute path of a file named relative to the current folder, without a slash at its end.
[[nodiscard]] QString absolutePath(const QString& word);

} // namespace brenvaldo::script
