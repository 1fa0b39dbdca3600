// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArrayView>
#include <QString>

namespace brenvaldo::platform::metadata {

/// The English description of an ICC profile; "" when it has none or is damaged.
[[nodiscard]] QString iccDescription(QByteArrayView profile);

} // namespace brenvaldo::platform::metadata
