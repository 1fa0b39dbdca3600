// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/containers/tiff_directory.h>

namespace brenvaldo::platform::metadata {

// Whole metadata blocks as fields of the directory that describes a picture.

/// A copy of the block in the field `tag`; empty when there is none.
[[nodiscard]] QByteArray blockOf(const containers::TiffDirectory& directory, std::uint16_t tag);

/// The IIM data sets, in order and without padding.
[[nodiscard]] QByteArray iptcOf(const containers::TiffDirectory& directory);

/// Puts `block` into the field `tag`, byte for byte: IPTC that is padded to whole words would not
/// fit the checksum that Photoshop resources hold. An empty block leaves the directory as it is.
void setBlock(containers::TiffDirectory& directory, std::uint16_t tag, const QByteArray& block);

} // namespace brenvaldo::platform::metadata
