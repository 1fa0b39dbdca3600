// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QList>

namespace brenvaldo::platform::containers {

/// The metadata of image 0 of a file as raw blocks, each empty when the file has none.
///
/// Carried bit-exactly into an output. The ICC profile and the resolution belong to the `Image`.
struct MetadataBlocks
{
    QByteArray exif = {}; ///< TIFF structure, without the "Exif\0\0" in front
    QByteArray xmp = {}; ///< XMP packet, UTF-8
    QByteArray iptc = {}; ///< IIM data sets
    QByteArray photoshop = {}; ///< image resource blocks ("8BIM..."), the IPTC resource among them
    QByteArray comment = {}; ///< text of a JPEG comment or of its counterpart

    /// Further application segments of a JPEG, whole: marker, length and contents.
    QList<QByteArray> jpegSegments = {};

    /// Textual chunks of a PNG other than those the blocks above were taken from, and its time,
    /// whole.
    QList<QByteArray> pngTextChunks = {};

    /// Chunks of a PNG that tell what its colours are, the ICC profile among them, whole.
    QList<QByteArray> pngColorChunks = {};
};

} // namespace brenvaldo::platform::containers
