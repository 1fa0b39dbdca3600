// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "property_dictionary.h"

#include <platform/containers/tiff_directory.h>

namespace brenvaldo::platform::metadata {

/// The property dictionaries of an EXIF block or a TIFF file, each empty without a value.
struct ExifProperties
{
    PropertyDictionary exif;
    PropertyDictionary tiff;
    PropertyDictionary gps;
};

[[nodiscard]] ExifProperties exifProperties(const containers::TiffFile& file);

/// The text of a user comment: eight bytes that name its characters, then the text.
///
/// UTF-16 that is in the other byte order than `order` is recognised.
[[nodiscard]] QString userCommentText(QByteArrayView comment, containers::ByteOrder order);

/// Text of unknown encoding: UTF-8 when it is valid as such, ISO 8859-1 otherwise; up to the first
/// zero byte.
[[nodiscard]] QString metadataText(QByteArrayView bytes);

} // namespace brenvaldo::platform::metadata
