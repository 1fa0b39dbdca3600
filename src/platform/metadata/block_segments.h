// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayList>

/// \file
/// The segments of a JPEG that hold a block, as many as it takes; none for an empty block.

namespace brenvaldo::platform::metadata {

[[nodiscard]] QByteArrayList exifSegments(const QByteArray& exif);
[[nodiscard]] QByteArrayList photoshopSegments(const QByteArray& resources);
[[nodiscard]] QByteArrayList commentSegments(const QByteArray& comment);

} // namespace brenvaldo::platform::metadata
