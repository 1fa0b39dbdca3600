// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/containers/tiff_directory.h>

namespace brenvaldo::platform::metadata {

// Edits of the first directory of an EXIF block that move nothing else: maker note, thumbnail and
// all other values stay where they are, byte for byte. A damaged block stays as it is.

/// `exif` with `fields` in its first directory, in the place of those of the same tags. The
/// directory and the new values come to stand at the end.
[[nodiscard]] QByteArray
withRootFields(const QByteArray& exif, const containers::TiffDirectory& fields);

/// `exif` without the fields of these tags in its first directory: the block that they were put
/// into when their values and the directory stand at its end.
[[nodiscard]] QByteArray
withoutRootFields(const QByteArray& exif, const QList<std::uint16_t>& tags);

} // namespace brenvaldo::platform::metadata
