// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/containers/metadata_blocks.h>

#include <QByteArray>

namespace brenvaldo::platform::metadata {

/// The XMP packet with the extended part, which a JPEG keeps in segments of its own, merged in.
///
/// The packet as it stands when there is no extended part, or an incomplete one.
[[nodiscard]] QByteArray completeXmp(const containers::MetadataBlocks& blocks);

/// The segments that hold `packet` in a JPEG: one, or a short packet and its extended part.
[[nodiscard]] QByteArrayList xmpSegments(const QByteArray& packet);

} // namespace brenvaldo::platform::metadata
