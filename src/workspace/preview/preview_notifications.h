// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>

namespace brenvaldo::workspace {

/// Names of the notifications that ask for a preview; the watermark panel posts them.
[[nodiscard]] const QStringList& previewNotifications();

} // namespace brenvaldo::workspace
