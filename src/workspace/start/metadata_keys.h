// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

namespace brenvaldo::workspace {

/// The file attributes that a name can get as prefix or postfix; the first is "" and means none.
[[nodiscard]] const QStringList& metadataKeys();

} // namespace brenvaldo::workspace
