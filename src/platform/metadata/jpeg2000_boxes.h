// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/containers/iso_boxes.h>

#include <optional>

/// \file
/// The boxes with identifiers that hold the metadata of a JPEG 2000 file.

namespace brenvaldo::platform::metadata {

enum class Jpeg2000Block { Exif, Xmp, Iptc, Photoshop };

/// The block in the box; nothing for a box that holds none.
[[nodiscard]] std::optional<Jpeg2000Block> jpeg2000BlockOf(const containers::IsoBox& box);

/// What the block is in a box that holds one.
[[nodiscard]] QByteArray jpeg2000BlockData(const containers::IsoBox& box);

/// A whole box that holds `data`.
[[nodiscard]] QByteArray jpeg2000Box(Jpeg2000Block block, const QByteArray& data);

} // namespace brenvaldo::platform::metadata
