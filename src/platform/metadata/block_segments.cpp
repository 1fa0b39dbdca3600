// SPDX-License-Identifier: GPL-3.0-or-later
#include "block_segments.h"

#include <platform/containers/jpeg_segments.h>

namespace brenvaldo::platform::metadata {

namespace jpeg = containers::jpeg;

namespace {

/// `data` in segments, each with `header` in front.
QByteArrayList segmentsOf(std::uint8_t marker, QByteArrayView header, const QByteArray& data)
{
    const qsizetype room = jpeg::longestPayload - header.size();
    QByteArrayList segments;
    for (qsizetype offset = 0; offset < data.size(); offset += room)
        segments.append(
            containers::jpegSegment(marker, header.toByteArray() + data.mid(offset, room))
        );
    return segments;
}

} // namespace

QByteArrayList exifSegments(const QByteArray& exif)
{
    return segmentsOf(jpeg::app1, jpeg::exifHeader, exif);
}

QByteArrayList photoshopSegments(const QByteArray& resources)
{
    return segmentsOf(jpeg::app13, jpeg::photoshopHeader, resources);
}

QByteArrayList commentSegments(const QByteArray& comment)
{
    return segmentsOf(jpeg::comment, {}, comment);
}

} // namespace brenvaldo::platform::metadata
