// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "metadata_edit.h"

#include <platform/containers/metadata_blocks.h>

namespace brenvaldo::platform::metadata {

/// The blocks with what `edit` sets in EXIF, IPTC and XMP; all others as they are. Nothing when a
/// block that is to be changed is damaged.
[[nodiscard]] std::optional<containers::MetadataBlocks>
editedBlocks(const containers::MetadataBlocks& blocks, const MetadataEdit& edit);

/// `photoshop` with `iptc` in the place of its IPTC resource, or as its last one. A checksum that
/// was right for the former resource is right for the new one. Nothing when the block is damaged.
[[nodiscard]] std::optional<QByteArray>
photoshopWith(const QByteArray& photoshop, const QByteArray& iptc);

} // namespace brenvaldo::platform::metadata
