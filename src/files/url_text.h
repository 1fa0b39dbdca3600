// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QUrl>

#include <optional>

/// \file
/// Addresses from texts by the strict rule of the platform.

namespace brenvaldo::files {

/// The address that `text` spells; nothing for an empty text, and for one with a character that an
/// address must encode: a blank, a bracket, a letter beyond ASCII.
[[nodiscard]] std::optional<QUrl> urlFromText(const QString& text);

/// Encodes the four characters "?", "=", "&" and "+", and no other.
[[nodiscard]] QString withEncodedQuerySigns(const QString& text);

} // namespace brenvaldo::files
