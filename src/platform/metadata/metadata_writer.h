// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "metadata_edit.h"

#include <QString>

namespace brenvaldo::platform::metadata {

/// Writes `edit` into the file at `path`: JPEG, PNG, TIFF, JPEG 2000, HEIC, HEIF or AVIF.
///
/// The file is replaced as a whole, or stays as it is: picture data and all other metadata are the
/// same bytes, mode, owner and extended attributes stay. Where IPTC can't be written, as in a
/// damaged block, the comment is written all the same. False when nothing was; the log tells why.
[[nodiscard]] bool writeMetadata(const QString& path, const MetadataEdit& edit);

} // namespace brenvaldo::platform::metadata
