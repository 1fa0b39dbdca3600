// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/containers/metadata_blocks.h>

#include <QByteArray>

namespace brenvaldo::test {

/// An XMP packet with `title` and as much padding as it takes to be `length` bytes long.
[[nodiscard]] QByteArray xmpPacket(const QByteArray& title, qsizetype length = 0);

/// An XMP packet of more than `length` bytes that no padding can be taken from.
[[nodiscard]] QByteArray fullXmpPacket(qsizetype length);

/// All kinds of blocks that a camera file holds: an EXIF block with a maker note and a thumbnail,
/// XMP, IPTC among further Photoshop resources, a comment, and a segment of the camera's own.
[[nodiscard]] platform::containers::MetadataBlocks cameraBlocks();

} // namespace brenvaldo::test
