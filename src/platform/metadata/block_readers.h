// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/containers/metadata_blocks.h>

#include <QByteArrayView>

/// \file
/// The metadata blocks of one container each, from the bytes of the whole file.
///
/// The bytes may be damaged or hostile: what can't be read is left out, nothing is read beyond the
/// end, and the work is bounded by the size of the file.

namespace brenvaldo::platform::metadata {

[[nodiscard]] containers::MetadataBlocks readJpegBlocks(QByteArrayView file);
[[nodiscard]] containers::MetadataBlocks readPngBlocks(QByteArrayView file);
/// TIFF and BigTIFF: the tags of the first directory that do not describe its pixels, with the
/// directories of EXIF and GPS below it, as an EXIF block of their own.
[[nodiscard]] containers::MetadataBlocks readTiffBlocks(QByteArrayView bytes);
/// HEIC, HEIF and AVIF.
[[nodiscard]] containers::MetadataBlocks readHeifBlocks(QByteArrayView file);
[[nodiscard]] containers::MetadataBlocks readJpeg2000Blocks(QByteArrayView file);
/// The boxes of the container; those that are compressed are left out.
[[nodiscard]] containers::MetadataBlocks readJpegXlBlocks(QByteArrayView file);
[[nodiscard]] containers::MetadataBlocks readWebpBlocks(QByteArrayView file);
[[nodiscard]] containers::MetadataBlocks readGifBlocks(QByteArrayView file);
[[nodiscard]] containers::MetadataBlocks readPsdBlocks(QByteArrayView file);

} // namespace brenvaldo::platform::metadata
