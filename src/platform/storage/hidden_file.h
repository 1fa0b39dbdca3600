// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <functional>

namespace brenvaldo::platform::storage {

/// Tries hidden names of `folder` until `make` succeeds with one, or fails for another reason than
/// that it is taken. The names are short: those of targets may be as long as a name can be. "" when
/// it fails.
[[nodiscard]] QString
hiddenName(const QString& folder, const std::function<bool(const QByteArray&)>& make);

/// Tells other processes that the file is in use, until it is closed or the process ends. False
/// when one of them is about to remove it.
[[nodiscard]] bool claimHiddenFile(int descriptor);

/// Removes the hidden files of `folder` that processes of this user were killed over.
void removeAbandonedFiles(const QString& folder);

} // namespace brenvaldo::platform::storage
