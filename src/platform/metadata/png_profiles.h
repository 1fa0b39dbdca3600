// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/containers/png_chunks.h>

namespace brenvaldo::platform::metadata {

enum class PngBlock { Exif, Xmp, Photoshop, Iptc };

/// A metadata block that a chunk holds.
struct PngBlockData
{
    PngBlock block;
    QByteArray data;
};

/// The block in a chunk of its own, or in the text of a chunk: XMP, and the profiles that some
/// programs write as hexadecimal text. `text` is that of the chunk.
[[nodiscard]] std::optional<PngBlockData>
pngBlockOf(const containers::PngChunk& chunk, const std::optional<containers::PngText>& text);

/// True for a text that holds such a profile, of whatever type.
[[nodiscard]] bool holdsProfile(const containers::PngText& text);

} // namespace brenvaldo::platform::metadata
