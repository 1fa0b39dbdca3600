// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

#include <array>
#include <optional>

/// \file
/// Colours as texts of a presets row: the Base64 of a serialised array of three single-precision
/// numbers. There are two serialisations, and both are written to the byte as the platform's own
/// archivers write them, so that files of presets can be exchanged both ways.

namespace brenvaldo::platform::archives {

/// Red, green and blue, usually from 0 to 1.
using ColorComponents = std::array<float, 3>;

/// The form of most records: a typed stream that holds the array.
[[nodiscard]] QString colorArchive(const ColorComponents& components);

/// The form of the gallery record: a keyed archive with the array under the key "MY_ARRAY".
[[nodiscard]] QString galleryColorArchive(const ColorComponents& components);

/// Reads either form, told apart by its first bytes; archives of any age and layout are accepted.
///
/// Nothing when the text is damaged or holds anything but three finite numbers. Components outside
/// of 0 to 1 come back as they are.
[[nodiscard]] std::optional<ColorComponents> colorFromArchive(const QString& text);

} // namespace brenvaldo::platform::archives
