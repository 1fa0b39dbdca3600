// SPDX-License-Identifier: GPL-3.0-or-later
#include "block_segments.h"
#include "block_splicers.h"
#include "xmp_packet.h"

#include <platform/containers/bytes.h>
#include <platform/containers/jpeg_segments.h>
#include <platform/containers/photoshop_resources.h>

namespace brenvaldo::platform::metadata {

namespace jpeg = containers::jpeg;

namespace {

QByteArrayList metadataSegments(const containers::MetadataBlocks& blocks)
{
    QByteArrayList segments = exifSegments(blocks.exif);
    segments += xmpSegments(blocks.xmp);
    segments
        += photoshopSegments(containers::photoshopBlockWithIptc(blocks.photoshop, blocks.iptc));
    segments += blocks.jpegSegments;
    segments += commentSegments(blocks.comment);
    return segments;
}

} // namespace

std::optional<QByteArrayList>
splicedJpeg(QByteArrayView encoded, const containers::MetadataBlocks& blocks)
{
    const auto header = containers::readJpegHeader(encoded);
    if (!header || header->segments.isEmpty())
        return std::nullopt;

    // JFIF stands right behind the start; everything else of the encoder follows the metadata.
    const bool hasJfif = header->segments.first().marker == jpeg::app0;
    qsizetype place = 2;
    if (hasJfif)
        place = header->segments.first().whole.end() - encoded.begin();
    return QByteArrayList{containers::viewed(encoded.first(place))} + metadataSegments(blocks)
        + QByteArrayList{containers::viewed(encoded.sliced(place))};
}

} // namespace brenvaldo::platform::metadata
