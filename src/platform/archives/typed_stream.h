// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "color_archive.h"

#include <QByteArrayView>

namespace brenvaldo::platform::archives {

/// True when two components are one object for the archivers: equal, and 0 or 1. Other numbers are
/// objects of their own, even when they are equal.
[[nodiscard]] bool isSharedNumber(float left, float right);

/// Writes the little-endian typed stream of an array of three float numbers.
[[nodiscard]] QByteArray typedStreamOf(const ColorComponents& components);

/// Reads such a stream of either byte order, whatever the types of its numbers are; raises
/// `DamagedArchive`.
[[nodiscard]] ColorComponents componentsOfTypedStream(QByteArrayView stream);

[[nodiscard]] bool isTypedStream(QByteArrayView data);

} // namespace brenvaldo::platform::archives
