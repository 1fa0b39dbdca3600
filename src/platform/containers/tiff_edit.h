// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "tiff_directory.h"

#include <QByteArrayList>

namespace brenvaldo::platform::containers {

/// Fields that come to stand in a TIFF structure, each in the place of the one of its tag.
struct TiffEdit
{
    TiffDirectory root = {}; ///< for the directory of image 0
    QList<std::uint16_t> removedFromRoot = {};
    TiffDirectory exif = {}; ///< for the EXIF directory, which is made where there is none
};

/// The structure with these fields, in pieces; pieces may point into `bytes`, which has to outlive
/// them. Values are given in its byte order.
///
/// All entries, values, directories and pixels that are not named stay bit by bit what they are and
/// where they are, damaged ones and maker notes with offsets of their own among them: the changed
/// directories are written behind the end, in the room of former ones if they stood there. Nothing
/// for a BigTIFF, a directory that is cut off, and a file beyond 4 GiB.
[[nodiscard]] std::optional<QByteArrayList> editedTiff(QByteArrayView bytes, const TiffEdit& edit);

/// The structure with the value of an EXIF field overwritten where the former one leaves as much
/// room, so that it does not grow; nothing where it does not.
[[nodiscard]] std::optional<QByteArray>
tiffWithExifValue(const QByteArray& bytes, const TiffField& field);

/// A structure with an empty directory.
[[nodiscard]] QByteArray emptyTiff(ByteOrder order);

} // namespace brenvaldo::platform::containers
