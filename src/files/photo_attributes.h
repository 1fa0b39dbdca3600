// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/metadata/property_dictionary.h>

#include <QDateTime>
#include <QString>

#include <optional>

namespace brenvaldo::files {

/// The value of a search attribute that comes from the picture in a file; nothing for a file that
/// is no photo, and for names of other attributes.
[[nodiscard]] std::optional<platform::metadata::PropertyValue>
photoAttribute(const QString& path, const QString& name);

/// When the photo was taken, by its EXIF; local time where it states no offset.
[[nodiscard]] std::optional<QDateTime> exposureDate(const QString& path);

} // namespace brenvaldo::files
