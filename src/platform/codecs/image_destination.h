// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/containers/metadata_blocks.h>
#include <platform/graphics/image.h>

#include <QString>

#include <optional>

namespace brenvaldo::platform::codecs {

enum class FileFormat { Png, Tiff, Bmp, Gif, Jpeg, Jpeg2000, Heic, Pdf };

struct EncodeOptions
{
    /// 0 to 1; only JPEG follows it. Not set: the platform's default quality.
    std::optional<double> lossyQuality = {};

    /// Blocks that must stand in the file from the start (HEIC alone); may be null.
    const containers::MetadataBlocks* blocks = nullptr;
};

/// Encodes `image` with its ICC profile and resolution, and no metadata, into the file at `path`.
///
/// Dots per inch are kept in every format but GIF, which has no place for them; a HEIC gets them in
/// its EXIF block. GIF, HEIC, BMP and JPEG are written with 8 bits a channel, HEIC at a fixed
/// quality.
///
/// The file is written in place: the caller passes a temporary path. Answers false on any failure
/// (damaged source, full disk, a picture that the format can't hold); what stands at `path` is then
/// of no use. Colours that a format can't hold (CMYK in PNG, say) are converted to sRGB, alpha that
/// it can't hold is flattened on white.
[[nodiscard]] bool encode(
    const graphics::Image& image,
    FileFormat format,
    const EncodeOptions& options,
    const QString& path
);

/// True when the encoder takes the picture where no disk can refuse its bytes.
[[nodiscard]] bool
canEncode(const graphics::Image& image, FileFormat format, const EncodeOptions& options);

} // namespace brenvaldo::platform::codecs
