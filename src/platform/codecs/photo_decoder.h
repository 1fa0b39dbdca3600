// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "image_source.h"

#include <platform/graphics/image_node.h>

#include <memory>
#include <vector>

namespace brenvaldo::platform::codecs {

/// One way to read photos; knows the header of its file.
class PhotoDecoder
{
public:
    PhotoDecoder() = default;
    PhotoDecoder(const PhotoDecoder&) = delete;
    PhotoDecoder& operator=(const PhotoDecoder&) = delete;
    PhotoDecoder(PhotoDecoder&&) = delete;
    PhotoDecoder& operator=(PhotoDecoder&&) = delete;
    virtual ~PhotoDecoder() = default;

    [[nodiscard]] virtual const ImageHeader& header() const = 0;

    /// Factors by which decoding can shrink a picture, the largest one last.
    [[nodiscard]] virtual std::vector<int> shrinkFactors() const { return {1}; }

    /// The stored pixels, shrunk by one of `shrinkFactors`. Throws `vips::VError`.
    [[nodiscard]] virtual graphics::ImageNode storedPixels(int shrink) const = 0;

    /// The upright pixels. Throws `vips::VError`.
    [[nodiscard]] virtual graphics::ImageNode uprightPixels(int shrink) const;
};

/// Opens a file whose contents are of the type `typeIdentifier`; throws `vips::VError` when its
/// header can't be read.
[[nodiscard]] std::unique_ptr<PhotoDecoder>
openStreamedPhoto(const QString& path, const QString& typeIdentifier);

/// True when photos of this type are read by `openHeifPhoto`.
[[nodiscard]] bool isHeifType(const QString& typeIdentifier);

/// A photo of the HEIF family. Throws `vips::VError`.
[[nodiscard]] std::unique_ptr<PhotoDecoder>
openHeifPhoto(const QString& path, const QString& typeIdentifier);

/// The small picture beside the main one of a HEIF file; null without one. Throws `vips::VError`.
[[nodiscard]] QImage heifThumbnail(const QString& path);

/// A bitmap file. Throws `vips::VError`.
[[nodiscard]] std::unique_ptr<PhotoDecoder> openBitmapPhoto(const QString& path);

/// True when photos of this type are read by `openPsdPhoto`.
[[nodiscard]] bool isPsdType(const QString& typeIdentifier);

/// The merged picture of a file with layers. Throws `vips::VError`.
[[nodiscard]] std::unique_ptr<PhotoDecoder>
openPsdPhoto(const QString& path, const QString& typeIdentifier);

/// Throws when a picture of `size` is empty, or too large to be decoded whole.
void checkDecodedWhole(graphics::PixelSize size);

/// True when photos of this type are read by `openStreamedPhoto`.
[[nodiscard]] bool isStreamedType(const QString& typeIdentifier);

/// Stored pixels turned and flipped as an orientation from 1 to 8 asks for.
[[nodiscard]] vips::VImage turnedUpright(const vips::VImage& stored, int orientation);

/// Width and height of a picture of `stored` size once it stands upright.
[[nodiscard]] graphics::PixelSize uprightSize(graphics::PixelSize stored, int orientation);

} // namespace brenvaldo::platform::codecs
