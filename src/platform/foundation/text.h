// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

/// \file
/// Rules of the platform's strings where they differ from Qt's. Indexes count UTF-16 units.

namespace brenvaldo::platform {

/// Compares case-folded canonical decompositions, code unit by code unit; below 0, 0 or above 0.
[[nodiscard]] int caseInsensitiveCompare(const QString& left, const QString& right);

/// "don't stop" gives "Don't Stop", "1st place" gives "1St Place".
[[nodiscard]] QString capitalized(const QString& text);

/// Splits at every newline character (U+000A to U+000D, U+0085, U+2028, U+2029); CR LF counts
/// twice.
[[nodiscard]] QStringList splitAtNewlines(const QString& text);

/// Splits at every `separator`, empty pieces kept; an empty separator gives the whole text.
[[nodiscard]] QStringList componentsSeparatedBy(const QString& text, const QString& separator);

/// Replaces every occurrence; an empty `target` changes nothing.
[[nodiscard]] QString
replacingOccurrences(const QString& text, const QString& target, const QString& replacement);

/// True when `needle` is not empty and occurs in `text`.
[[nodiscard]] bool containsText(const QString& text, const QString& needle);

/// True when `suffix` is not empty and ends `text`, case-sensitive.
[[nodiscard]] bool hasSuffix(const QString& text, const QString& suffix);

/// The units from `index` on; raises a range error beyond the end.
[[nodiscard]] QString substringFrom(const QString& text, qsizetype index);

/// The units before `index`; raises a range error beyond the end.
[[nodiscard]] QString substringTo(const QString& text, qsizetype index);

/// `length` units from `location` on; raises a range error beyond the end.
[[nodiscard]] QString substring(const QString& text, qsizetype location, qsizetype length);

} // namespace brenvaldo::platform
