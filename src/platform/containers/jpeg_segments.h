// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QList>

#include <cstdint>
#include <optional>

namespace brenvaldo::platform::containers {

namespace jpeg {

constexpr std::uint8_t app0 = 0xE0;
constexpr std::uint8_t app1 = 0xE1;
constexpr std::uint8_t app2 = 0xE2;
constexpr std::uint8_t app13 = 0xED;
constexpr std::uint8_t app14 = 0xEE;
constexpr std::uint8_t app15 = 0xEF;
constexpr std::uint8_t comment = 0xFE;
constexpr qsizetype longestPayload = 65533;

constexpr QByteArrayView exifHeader("Exif\0\0", 6);
constexpr QByteArrayView xmpHeader("http://ns.adobe.com/xap/1.0/\0", 29);
constexpr QByteArrayView extendedXmpHeader("http://ns.adobe.com/xmp/extension/\0", 35);
constexpr QByteArrayView photoshopHeader("Photoshop 3.0\0", 14);

} // namespace jpeg

/// A marker segment before the picture data: views into the file.
struct JpegSegment
{
    std::uint8_t marker = 0;
    QByteArrayView payload; ///< without the length
    QByteArrayView whole; ///< marker, length and payload
};

/// What stands in a JPEG before its first scan.
struct JpegHeader
{
    QList<JpegSegment> segments;
    qsizetype end = 0; ///< offset behind the last segment
};

/// Walks the segments up to the first scan or to damage; nothing when `file` is no JPEG.
[[nodiscard]] std::optional<JpegHeader> readJpegHeader(QByteArrayView file);

/// What the segment adds to the EXIF block of which `block` stood in those before it; nothing when
/// it holds no part of that.
[[nodiscard]] std::optional<QByteArrayView>
exifPartOf(const JpegSegment& segment, QByteArrayView block);

/// The EXIF block in front of the picture; empty without one.
[[nodiscard]] QByteArray jpegExif(const JpegHeader& header);

/// Makes a whole segment; `payload` is at most `jpeg::longestPayload` bytes long.
[[nodiscard]] QByteArray jpegSegment(std::uint8_t marker, QByteArrayView payload);

} // namespace brenvaldo::platform::containers
