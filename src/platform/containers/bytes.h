// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <cstdint>
#include <optional>

/// \file
/// Bounds-checked access to bytes of foreign files. Offsets and lengths come from the file and may
/// be anything; what does not stand in the bytes is answered with nothing.

namespace brenvaldo::platform::containers {

enum class ByteOrder { Big, Little };

/// The `length` bytes from `offset` on.
[[nodiscard]] std::optional<QByteArrayView>
sliceOf(QByteArrayView bytes, std::uint64_t offset, std::uint64_t length);

/// All bytes from `offset` on; empty beyond the end.
[[nodiscard]] QByteArrayView tailOf(QByteArrayView bytes, std::uint64_t offset);

/// The bytes as an array that does not own them: they have to outlive it.
[[nodiscard]] QByteArray viewed(QByteArrayView bytes);

/// The unsigned integer of `width` (1 to 8) bytes at `offset`.
[[nodiscard]] std::optional<std::uint64_t>
unsignedAt(QByteArrayView bytes, std::uint64_t offset, int width, ByteOrder order);

/// Appends the low `width` bytes of `value`.
void appendUnsigned(QByteArray& bytes, std::uint64_t value, int width, ByteOrder order);

} // namespace brenvaldo::platform::containers
