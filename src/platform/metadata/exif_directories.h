// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <platform/containers/tiff_directory.h>

namespace brenvaldo::platform::metadata {

/// The directories of an EXIF block without its thumbnail: views into the bytes they were read
/// from.
struct ExifDirectories
{
    containers::ByteOrder order = containers::ByteOrder::Big;
    containers::TiffDirectory image = {};
    containers::TiffDirectory exif = {};
    containers::TiffDirectory gps = {};
    containers::TiffDirectory interoperability = {};
};

/// True for tags that tell how the pixels of a file are stored, and for those that stand in blocks
/// of their own.
[[nodiscard]] bool describesStorage(std::uint16_t tag);

/// The directories of `file` without the tags that describe its storage.
[[nodiscard]] ExifDirectories exifDirectoriesOf(const containers::TiffFile& file);

/// The same directories with all numbers in the order `order`; the maker note stays as it is.
[[nodiscard]] ExifDirectories
inOrder(const ExifDirectories& directories, containers::ByteOrder order);

/// An EXIF block that holds the directories; empty when there are no fields.
///
/// The maker note comes to stand at the offset it had, where that is within reach: those of many
/// cameras hold offsets into the whole block.
[[nodiscard]] QByteArray serializedExif(const ExifDirectories& directories);

} // namespace brenvaldo::platform::metadata
