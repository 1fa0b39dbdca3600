// SPDX-License-Identifier: GPL-3.0-or-later
#include "block_splicers.h"
#include "photoshop_resources.h"
#include "png_chunks.h"
#include "xmp_packet.h"

#include <algorithm>

namespace brenvaldo::platform {

namespace {

bool isAscii(const QByteArray& text)
{
    return std::all_of(text.begin(), text.end(), [](char unit) {
        return static_cast<unsigned char>(unit) < 0x80;
    });
}

QByteArray commentChunk(const QByteArray& comment)
{
    return isAscii(comment) || !comment.isValidUtf8()
        ? pngChunk("tEXt", QByteArray("Comment\0", 8) + comment)
        : pngInternationalText("Comment", comment);
}

bool holdsComment(const QByteArray& chunk)
{
    return QByteArrayView(chunk).sliced(8).startsWith(QByteArrayView("Comment\0", 8));
}

QByteArrayList metadataChunks(const MetadataBlocks& blocks)
{
    QByteArrayList chunks;
    if (!blocks.exif.isEmpty())
        chunks.append(pngChunk("eXIf", blocks.exif));
    const QByteArray xmp = completeXmp(blocks);
    if (!xmp.isEmpty())
        chunks.append(pngInternationalText("XML:com.adobe.xmp", xmp));
    // IPTC has no chunk of its own; the profile is the place where other programs look for it.
    const QByteArray resources = photoshopBlockWithIptc(blocks.photoshop, blocks.iptc);
    if (!resources.isEmpty())
        chunks.append(rawProfileChunk("iptc", resources));
    chunks += blocks.pngTextChunks;
    const bool hasComment
        = std::any_of(blocks.pngTextChunks.begin(), blocks.pngTextChunks.end(), holdsComment);
    if (!blocks.comment.isEmpty() && !hasComment)
        chunks.append(commentChunk(blocks.comment));
    return chunks;
}

} // namespace

std::optional<QByteArrayList> splicedPng(QByteArrayView encoded, const MetadataBlocks& blocks)
{
    const auto chunks = readPngChunks(encoded);
    if (!chunks)
        return std::nullopt;
    const auto pixels = std::find_if(chunks->begin(), chunks->end(), [](const PngChunk& chunk) {
        return chunk.type == QByteArrayView("IDAT");
    });
    if (pixels == chunks->end())
        return std::nullopt;
    const qsizetype place = pixels->whole.begin() - encoded.begin();
    return QByteArrayList{QByteArray::fromRawData(encoded.data(), place)} + metadataChunks(blocks)
        + QByteArrayList{QByteArray::fromRawData(encoded.data() + place, encoded.size() - place)};
}

} // namespace brenvaldo::platform
