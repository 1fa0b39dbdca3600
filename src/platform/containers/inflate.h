// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <optional>

namespace brenvaldo::platform::containers {

/// Inflates a zlib stream; nothing when it is damaged or comes out longer than `longest` bytes.
[[nodiscard]] std::optional<QByteArray> inflated(QByteArrayView deflated, qsizetype longest);

/// Makes a zlib stream.
[[nodiscard]] QByteArray deflated(QByteArrayView bytes);

/// The checksum of PNG chunks.
[[nodiscard]] quint32 crc32Of(QByteArrayView bytes);

} // namespace brenvaldo::platform::containers
