// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

/// \file
/// A bookmark remembers a file or folder between two starts of the program.

namespace brenvaldo::platform::archives {

/// The record that stands for `path`; nothing when no such file or folder exists.
[[nodiscard]] std::optional<QByteArray> bookmarkFor(const QString& path);

/// The path that `record` stands for; nothing when the record is damaged or the path is gone.
[[nodiscard]] std::optional<QString> pathOfBookmark(const QByteArray& record);

} // namespace brenvaldo::platform::archives
