// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/containers/metadata_blocks.h>

#include <QString>

#include <optional>

namespace brenvaldo::platform::metadata {

/// Copies the raw metadata blocks of image 0 of any image file; nothing when the file is no image.
///
/// A file without metadata gives empty blocks. Damaged blocks are carried as they stand where the
/// container allows it, and left out otherwise.
[[nodiscard]] std::optional<containers::MetadataBlocks> readMetadataBlocks(const QString& path);

} // namespace brenvaldo::platform::metadata
