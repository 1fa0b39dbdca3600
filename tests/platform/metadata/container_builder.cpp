// SPDX-License-Identifier: GPL-3.0-or-later
#include "container_builder.h"

#include <platform/containers/bytes.h>
#include <platform/containers/png_chunks.h>

namespace brenvaldo::test {

using platform::containers::appendUnsigned;
using platform::containers::ByteOrder;

namespace {

QByteArray big(qsizetype value, int width)
{
    QByteArray bytes;
    appendUnsigned(bytes, static_cast<std::uint64_t>(value), width, ByteOrder::Big);
    return bytes;
}

QByteArray little(qsizetype value, int width)
{
    QByteArray bytes;
    appendUnsigned(bytes, static_cast<std::uint64_t>(value), width, ByteOrder::Little);
    return bytes;
}

QByteArray itemInformation(int id, const QByteArray& typeAndName)
{
    return isoBox("infe", QByteArray("\x02\0\0\0", 4) + big(id, 2) + big(0, 2) + typeAndName);
}

QByteArray itemLocation(int id, qsizetype offset, qsizetype length)
{
    return big(id, 2) + big(0, 2) + big(1, 2) + big(offset, 4) + big(length, 4);
}

/// The meta box of a picture (item 1) with EXIF (item 2) and XMP (item 3) behind each other at
/// `offset`.
QByteArray heifMeta(qsizetype offset, qsizetype exifLength, qsizetype xmpLength)
{
    const QByteArray noFlags(4, '\0');
    return isoBox(
        "meta",
        noFlags + isoBox("pitm", noFlags + big(1, 2))
            + isoBox(
                "iinf",
                noFlags + big(2, 2) + itemInformation(2, QByteArray("Exif\0", 5))
                    + itemInformation(3, QByteArray("mime\0application/rdf+xml\0", 25))
            )
            + isoBox(
                "iloc",
                noFlags + QByteArray("\x44\0", 2) + big(2, 2) + itemLocation(2, offset, exifLength)
                    + itemLocation(3, offset + exifLength, xmpLength)
            )
            + isoBox("iref", noFlags + isoBox("cdsc", big(2, 2) + big(1, 2) + big(1, 2)))
    );
}

QByteArray riffChunk(const QByteArray& type, const QByteArray& data)
{
    return type + little(data.size(), 4) + data + QByteArray(data.size() % 2, '\0');
}

QByteArray gifDataBlocks(const QByteArray& data)
{
    constexpr qsizetype longest = 255;
    QByteArray blocks;
    for (qsizetype offset = 0; offset < data.size(); offset += longest) {
        const QByteArray part = data.mid(offset, longest);
        blocks += static_cast<char>(part.size()) + part;
    }
    return blocks + '\0';
}

/// The bytes that lead a reader of data blocks from anywhere in the packet to its end.
QByteArray gifXmpTrailer()
{
    QByteArray trailer(1, '\x01');
    for (int value = 255; value >= 0; --value)
        trailer.append(static_cast<char>(value));
    return trailer + '\0';
}

} // namespace

QByteArray bareJpeg(const QByteArrayList& segments)
{
    return "\xFF\xD8" + segments.join() + QByteArray("\xFF\xDA\0\x02\x11\x22\xFF\xD9", 8);
}

QByteArray barePng(const QByteArrayList& chunks)
{
    const QByteArray header = big(1, 4) + big(1, 4) + QByteArray("\x08\0\0\0\0", 5);
    return "\x89PNG\r\n\x1A\n" + platform::containers::pngChunk("IHDR", header) + chunks.join()
        + platform::containers::pngChunk("IDAT", "pixels")
        + platform::containers::pngChunk("IEND", {});
}

QByteArray isoBox(const QByteArray& type, const QByteArray& payload)
{
    return big(8 + payload.size(), 4) + type + payload;
}

QByteArray bareHeif(const QByteArray& exif, const QByteArray& xmp)
{
    const QByteArray start = isoBox("ftyp", "heic" + QByteArray(4, '\0') + "mif1heic");
    const QByteArray item = big(0, 4) + exif;
    const qsizetype metaLength = heifMeta(0, 0, 0).size();
    return start + heifMeta(start.size() + metaLength + 8, item.size(), xmp.size())
        + isoBox("mdat", item + xmp);
}

QByteArray bareJpeg2000(const QByteArrayList& boxes)
{
    return isoBox("jP  ", "\r\n\x87\n") + boxes.join() + isoBox("jp2c", "code");
}

QByteArray bareJpegXl(const QByteArray& exif, const QByteArray& xmp)
{
    return isoBox("JXL ", "\r\n\x87\n") + isoBox("Exif", big(0, 4) + exif) + isoBox("xml ", xmp)
        + isoBox("jxlc", "code");
}

QByteArray bareWebp(const QByteArray& exif, const QByteArray& xmp)
{
    const QByteArray chunks
        = "WEBP" + riffChunk("VP8L", "pixels") + riffChunk("EXIF", exif) + riffChunk("XMP ", xmp);
    return "RIFF" + little(chunks.size(), 4) + chunks;
}

QByteArray bareGif(const QByteArray& comment, const QByteArray& xmp)
{
    return "GIF89a" + little(1, 2) + little(1, 2) + QByteArray("\0\0\0", 3)
        + QByteArray("\x21\xFE", 2) + gifDataBlocks(comment) + "\x21\xFF\x0BXMP DataXMP" + xmp
        + gifXmpTrailer() + ';';
}

QByteArray barePsd(const QByteArray& resources)
{
    return "8BPS" + QByteArray(22, '\0') + big(0, 4) + big(resources.size(), 4) + resources;
}

} // namespace brenvaldo::test
