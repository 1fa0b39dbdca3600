// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "deferred_pixels.h"
#include "file_labels.h"
#include "geometry.h"

#include <QString>

namespace brenvaldo::platform {

/// Kinds of storage in a TIFF that the engine refuses.
enum class TiffStorage { OldJpeg, TwelveBits, SeparateTiles };

/// What a TIFF of such a kind holds.
struct TiffSamples
{
    TiffStorage storage = TiffStorage::OldJpeg;
    PixelSize size;
    int bands = 3; ///< grey, RGB, or RGB with alpha
    int bits = 8; ///< 8 or 16 when read; those of twelve fill sixteen
    int orientation = 1; ///< 1 to 8
    FileLabels labels;
};

/// The pixels that `readTiffSamples` answers.
[[nodiscard]] PixelLayout layoutOf(const TiffSamples& samples);

/// What the first page of the file holds; nothing when the engine can read it, or nobody can.
[[nodiscard]] std::optional<TiffSamples> samplesBeyondTheEngine(const QString& path);

/// @throws vips::VError when the first page claims more than the file's bytes can hold.
void checkTiffSize(const QString& path);

/// The stored pixels in memory. Throws `vips::VError` when the file is damaged.
[[nodiscard]] vips::VImage readTiffSamples(const QString& path, const TiffSamples& samples);

} // namespace brenvaldo::platform
