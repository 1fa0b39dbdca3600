// SPDX-License-Identifier: GPL-3.0-or-later
#include "block_splicers.h"
#include "xmp_packet.h"

#include <platform/containers/bytes.h>
#include <platform/containers/photoshop_resources.h>
#include <platform/containers/png_chunks.h>
#include <platform/containers/tiff_directory.h>

#include <algorithm>
#include <iterator>

namespace brenvaldo::platform::metadata {

using containers::PngChunk;
using containers::viewed;

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
        ? containers::pngChunk("tEXt", QByteArray("Comment\0", 8) + comment)
        : containers::pngInternationalText("Comment", comment);
}

bool holdsComment(const QByteArray& chunk)
{
    return QByteArrayView(chunk).sliced(8).startsWith(QByteArrayView("Comment\0", 8));
}

QByteArrayList metadataChunks(const containers::MetadataBlocks& blocks)
{
    QByteArrayList chunks;
    // The format allows no other bytes.
    if (containers::TiffFile::open(blocks.exif))
        chunks.append(containers::pngChunk("eXIf", blocks.exif));
    const QByteArray xmp = completeXmp(blocks);
    if (!xmp.isEmpty())
        chunks.append(containers::pngInternationalText("XML:com.adobe.xmp", xmp));
    // IPTC has no chunk of its own; the profile is the place where other programs look for it.
    const QByteArray resources = containers::photoshopBlockWithIptc(blocks.photoshop, blocks.iptc);
    if (!resources.isEmpty())
        chunks.append(containers::rawProfileChunk("iptc", resources));
    chunks += blocks.pngTextChunks;
    const bool hasComment
        = std::any_of(blocks.pngTextChunks.begin(), blocks.pngTextChunks.end(), holdsComment);
    if (!blocks.comment.isEmpty() && !hasComment)
        chunks.append(commentChunk(blocks.comment));
    return chunks;
}

QByteArray profileAmong(const QList<PngChunk>& chunks)
{
    for (const PngChunk& chunk : chunks) {
        const QByteArray profile = containers::pngProfile(chunk);
        if (!profile.isEmpty())
            return profile;
    }
    return {};
}

QByteArray profileAmong(const QByteArrayList& wholeChunks)
{
    QList<PngChunk> chunks;
    for (const QByteArray& whole : wholeChunks)
        chunks.append(containers::pngChunkOf(whole));
    return profileAmong(chunks);
}

bool holdsDamagedProfile(const QByteArray& whole)
{
    const PngChunk chunk = containers::pngChunkOf(whole);
    return chunk.type == QByteArrayView("iCCP") && containers::pngProfile(chunk).isEmpty();
}

/// What describes the colours of the source describes those of the encoded file as well, unless
/// they were converted.
bool keepsColors(const QList<PngChunk>& encoded, const QByteArrayList& colors)
{
    return !colors.isEmpty() && profileAmong(encoded) == profileAmong(colors);
}

} // namespace

std::optional<QByteArrayList>
splicedPng(QByteArrayView encoded, const containers::MetadataBlocks& blocks)
{
    const auto chunks = containers::readPngChunks(encoded);
    if (!chunks)
        return std::nullopt;
    const auto pixels = std::find_if(chunks->begin(), chunks->end(), [](const PngChunk& chunk) {
        return chunk.type == QByteArrayView("IDAT");
    });
    if (pixels == chunks->end())
        return std::nullopt;

    const bool isSameColors = keepsColors(*chunks, blocks.pngColorChunks);
    QByteArrayList pieces{viewed(encoded.first(containers::pngSignatureLength))};
    for (auto chunk = chunks->begin(); chunk != pixels; ++chunk) {
        if (!isSameColors || chunk->type != QByteArrayView("iCCP"))
            pieces.append(viewed(chunk->whole));
    }
    if (isSameColors)
        std::remove_copy_if(
            blocks.pngColorChunks.begin(),
            blocks.pngColorChunks.end(),
            std::back_inserter(pieces),
            holdsDamagedProfile
        );
    const qsizetype place = pixels->whole.begin() - encoded.begin();
    return pieces + metadataChunks(blocks) + QByteArrayList{viewed(encoded.sliced(place))};
}

} // namespace brenvaldo::platform::metadata
