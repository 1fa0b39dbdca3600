// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tiff_directory.h"

#include <QtGlobal>

#include <optional>
#include <variant>

namespace brenvaldo::platform::containers {

/// A number of a field: whole where its type is.
using TiffNumber = std::variant<qint64, double>;

/// The number `offset` bytes from the start of the value; nothing for a fraction by 0, and beyond
/// the end.
[[nodiscard]] std::optional<TiffNumber>
tiffNumberAt(const TiffField& field, std::uint64_t offset, ByteOrder order);

/// The first number of the field; nothing when it has none, or a text.
[[nodiscard]] std::optional<double> firstNumber(const TiffField& field, ByteOrder order);

} // namespace brenvaldo::platform::containers
