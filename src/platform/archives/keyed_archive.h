// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "color_archive.h"

#include <QByteArrayView>

namespace brenvaldo::platform::archives {

/// Writes the keyed archive, a binary property list, that holds an array of three float numbers
/// under the key "MY_ARRAY".
[[nodiscard]] QByteArray keyedArchiveOf(const ColorComponents& components);

/// Reads such an archive, whatever the order of its entries is; raises `DamagedArchive`.
[[nodiscard]] ColorComponents componentsOfKeyedArchive(QByteArrayView archive);

[[nodiscard]] bool isKeyedArchive(QByteArrayView data);

} // namespace brenvaldo::platform::archives
