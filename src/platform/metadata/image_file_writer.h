// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/codecs/image_destination.h>

#include <QString>

#include <optional>

namespace brenvaldo::platform::metadata {

struct ImageFileRequest
{
    codecs::FileFormat format = codecs::FileFormat::Png;
    /// 0 to 1, JPEG only; not set: the platform's default quality.
    std::optional<double> lossyQuality = {};
    /// Metadata to carry over bit-exactly into PNG, TIFF, JPEG and HEIC; null: none. In a HEIC,
    /// IPTC becomes XMP as well when there is no XMP yet.
    const containers::MetadataBlocks* metadata = nullptr;
};

/// Writes `image` as a whole file at `path`, or nothing: an existing file is replaced only on
/// success.
///
/// `path` may be the file that `image` is read from.
[[nodiscard]] bool
writeImageFile(const graphics::Image& image, const ImageFileRequest& request, const QString& path);

} // namespace brenvaldo::platform::metadata
