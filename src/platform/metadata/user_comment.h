// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/containers/tiff_directory.h>

#include <QString>

namespace brenvaldo::platform::metadata {

/// The field of a user comment: its character code, and the text as ASCII where that can hold it,
/// as UTF-16 in the order of the block otherwise.
[[nodiscard]] containers::TiffField
userCommentField(const QString& comment, containers::ByteOrder order);

/// The EXIF block with the comment, one of its own where `exif` is empty; nothing when `exif` is
/// damaged.
[[nodiscard]] std::optional<QByteArray>
exifWithUserComment(const QByteArray& exif, const QString& comment);

} // namespace brenvaldo::platform::metadata
