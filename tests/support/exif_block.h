// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>

namespace brenvaldo::test {

/// What a hand-made EXIF block states; empty and zero fields are left out.
struct ExifFields
{
    int orientation = 0;
    QByteArray make = {};
    QByteArray dateTimeOriginal = {}; ///< "2026:11:15 10:44:33"
    QByteArray userComment = {}; ///< with its eight-byte character code in front
    QByteArray makerNote = {};
    QByteArray thumbnail = {}; ///< a JPEG file
    int dotsPerInch = 0;
};

/// A little-endian TIFF structure with these fields, without the "Exif\0\0" in front.
[[nodiscard]] QByteArray exifBlock(const ExifFields& fields);

} // namespace brenvaldo::test
