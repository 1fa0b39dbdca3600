// SPDX-License-Identifier: GPL-3.0-or-later
#include "block_builder.h"

#include <platform/containers/jpeg_segments.h>

#include <support/exif_block.h>
#include <support/iptc_block.h>

namespace brenvaldo::test {

namespace {

QByteArray packetWith(const QByteArray& title, const QByteArray& padding)
{
    return "<?xpacket begin=\"\xEF\xBB\xBF\" id=\"W5M0MpCehiHzreSzNTczkc9d\"?>"
           "<x:xmpmeta xmlns:x=\"adobe:ns:meta/\">"
           "<rdf:RDF xmlns:rdf=\"http://www.w3.org/1999/02/22-rdf-syntax-ns#\">"
           "<rdf:Description rdf:about=\"\" xmlns:dc=\"http://purl.org/dc/elements/1.1/\">"
           "<dc:title><rdf:Alt><rdf:li xml:lang=\"x-default\">"
        + title + "</rdf:li></rdf:Alt></dc:title></rdf:Description></rdf:RDF></x:xmpmeta>" + padding
        + "<?xpacket end=\"w\"?>";
}

/// Bytes that repeat after a long while only, so that a shifted copy shows.
QByteArray unevenBytes(int length)
{
    QByteArray bytes;
    for (int i = 0; i < length; ++i)
        bytes.append(static_cast<char>((i * 7919 / 13) % 251));
    return bytes;
}

} // namespace

QByteArray xmpPacket(const QByteArray& title, qsizetype length)
{
    const QByteArray bare = packetWith(title, {});
    return packetWith(title, QByteArray(qMax<qsizetype>(0, length - bare.size()), ' '));
}

QByteArray fullXmpPacket(qsizetype length)
{
    QByteArray title;
    for (int i = 0; title.size() < length; ++i)
        title += QByteArray::number(i) + ' ';
    return packetWith(title, {});
}

platform::containers::MetadataBlocks cameraBlocks()
{
    platform::containers::MetadataBlocks blocks;
    blocks.exif = exifBlock(
        {.orientation = 6,
         .make = "Brand",
         .dateTimeOriginal = "2026:11:15 10:44:33",
         .userComment = QByteArray("ASCII\0\0\0", 8) + "a comment",
         .makerNote = "Maker" + unevenBytes(4001),
         .thumbnail = unevenBytes(9001),
         .dotsPerInch = 300}
    );
    blocks.xmp = xmpPacket("A title", 4000);
    blocks.iptc = iptcDataSet(80, "Jane") + iptcDataSet(120, "A caption of odd length");
    blocks.photoshop = photoshopResource(0x03ED, unevenBytes(16))
        + photoshopResource(0x0404, blocks.iptc) + photoshopResource(0x0425, unevenBytes(15));
    blocks.comment = "a JPEG comment";
    blocks.jpegSegments = {platform::containers::jpegSegment(0xE5, "Camera" + unevenBytes(300))};
    return blocks;
}

} // namespace brenvaldo::test
