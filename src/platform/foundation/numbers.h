// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <cstdint>
#include <optional>

/// \file
/// Number rules of the platform's strings and of its integer conversions. Parsing never fails: it
/// takes the longest number at the start of a text (after white space) and answers 0 without one.

namespace brenvaldo::platform {

/// Reads a 32-bit integer: "12abc" is 12, "12.7" is 12, "" is 0; too large values clamp.
[[nodiscard]] std::int32_t intValue(const QString& text);

/// Reads a 64-bit integer by the same rule.
[[nodiscard]] std::int64_t integerValue(const QString& text);

/// Reads a decimal number with "." in every locale: "1e3x" is 1000, "inf" is 0.
[[nodiscard]] double doubleValue(const QString& text);

/// `doubleValue` narrowed to single precision.
[[nodiscard]] float floatValue(const QString& text);

/// Scans hexadecimal digits at the start of `text`, after white space and an optional "0x".
///
/// Nothing when no digit stands there; more than 32 bits give 0xFFFFFFFF.
[[nodiscard]] std::optional<std::uint32_t> scanHexInt(const QString& text);

/// Cuts the fraction off. Values that no 32-bit integer holds, and NaN, give the lowest integer,
/// as the processor's conversion does.
[[nodiscard]] std::int32_t truncated(double value);

/// The low 32 bits of `value` as a signed number: 32-bit arithmetic that wraps.
[[nodiscard]] std::int32_t wrapped32(std::int64_t value);

/// Prints a number as "%@" does: integers plain, others with up to 16 significant digits.
[[nodiscard]] QString numberText(double value);

} // namespace brenvaldo::platform
