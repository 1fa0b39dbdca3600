// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "metadata_edit.h"

#include <platform/containers/metadata_blocks.h>

namespace brenvaldo::platform::metadata {

/// The blocks with what `edit` sets in EXIF, IPTC and XMP; all others as they are. Nothing when a
/// block that is to be changed is damaged.
[[nodiscard]] std::optional<containers::MetadataBlocks>
editedBlocks(const containers::MetadataBlocks& blocks, const MetadataEdit& edit);

/// `photoshop` with `iptc` in the place of its first IPTC resource, or as its last resource, and
/// the checksum of that. Nothing when the block is damaged.
[[nodiscard]] std::optional<QByteArray>
photoshopWith(const QByteArray& photoshop, const QByteArray& iptc);

/// IPTC before and after an edit.
struct IptcBlocks
{
    QByteArray before;
    QByteArray after;
};

/// A checksum of IPTC that was right, or of none, is right for the new one; a wrong one stays.
/// Nothing when the block is damaged.
[[nodiscard]] std::optional<QByteArray>
photoshopWithChecksum(const QByteArray& photoshop, const IptcBlocks& iptc);

} // namespace brenvaldo::platform::metadata
